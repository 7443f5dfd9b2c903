#include "model/file_text.h"

#include <cstdio>
#include <memory>

FileText ReadFileText(const std::string& strPath, std::size_t nMost) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(strPath.c_str(), "rb"),
                                                               std::fclose);
    std::string strText;
    bool bRead = file != nullptr;
    if (bRead) {
        char buffer[65536];
        while (const size_t nRead = std::fread(buffer, 1, sizeof(buffer), file.get())) {
            if (nRead > nMost - strText.size()) {
                return {"", strPath + " is too large to be shown: it has more than " +
                                std::to_string(nMost) + " bytes"};
            }
            strText.append(buffer, nRead);
        }
        bRead = std::ferror(file.get()) == 0;
    }
    return bRead ? FileText{std::move(strText), ""} : FileText{"", strPath + " cannot be read"};
}
