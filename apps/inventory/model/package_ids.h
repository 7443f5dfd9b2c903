// Numbers that packages keep when the inventory is read again: a list keeps its selection by them.

#pragma once

#include <cstddef>
#include <map>
#include <string>

class PackageIds {
public:
    std::size_t Of(const std::string& strName) {
        return m_ids.emplace(strName, m_ids.size()).first->second;
    }

private:
    std::map<std::string, std::size_t> m_ids;
};
