#include "sources/whole_file.h"

#include "sources/new_file.h"

Failure WriteWholeFile(LPCSTR pszMessage, ErrorCode code, LPCSTR pszPath,
                       const std::function<BOOL(LPCSTR, Work&)>& write) {
    return Work::Run(pszMessage, [&](Work& work) {
        NewFile file(pszPath);
        ::SetLastError(NO_ERROR);
        try {
            if (!write(file.Path(), work) || !file.PutInPlace()) {
                Failure pReason = SystemReason(::GetLastError(), pszPath);
                throw Failed(code, std::move(pReason), pszPath).release();
            }
        } catch (CFileException* pException) {
            pException->m_strFileName = pszPath;  // not the one beside it
            throw Failed(code, FileReason(pException), pszPath).release();
        }
    });
}
