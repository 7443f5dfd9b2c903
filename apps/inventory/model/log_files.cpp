#include "model/log_files.h"

#include <cstdlib>

std::string OlderLog(const std::string& strPath) {
    constexpr size_t kMostDigits = 3;  // more of them are a day
    const size_t nDigits = strPath.find_last_not_of("0123456789") + 1;
    const bool bNumber = nDigits > 1 && strPath[nDigits - 1] == '.' && nDigits < strPath.size() &&
                         strPath.size() - nDigits <= kMostDigits;
    return bNumber ? strPath.substr(0, nDigits) +
                         std::to_string(std::atoi(strPath.c_str() + nDigits) + 1)
                   : strPath + ".1";
}
