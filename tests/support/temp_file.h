// A name for a file that goes away with the object.
#pragma once

#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>

class TempFile {
public:
    /// The file is there, with this content.
    explicit TempFile(const std::string& strContent = {}) {
        char szFolder[MAX_PATH];
        ::GetTempPath(sizeof szFolder, szFolder);
        ::GetTempFileName(szFolder, "qvt", 0, m_szPath);
        std::ofstream(m_szPath, std::ios::binary) << strContent;
    }
    ~TempFile() { ::DeleteFile(m_szPath); }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    LPCTSTR Path() const { return m_szPath; }
    std::string Content() const {
        std::ifstream file(m_szPath, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    char m_szPath[MAX_PATH] = {};
};
