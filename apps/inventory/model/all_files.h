// AllFiles: the files that the packages of an inventory have brought, by the database's lists, read
// package by package. A list's folders that have something in them are left out.

#pragma once

#include "model/package_store.h"
#include "model/problem.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

class AllFiles {
public:
    // Forgets what was read. The inventory must outlive what is read of it.
    void Start(const Inventory& inventory, const PackageStore& store);
    // Reads the list of one more package. False: all are read. A list that cannot be read counts as
    // an empty one, and its problem is the last.
    bool ReadNext();

    size_t Count() const { return m_rows.size(); }
    size_t PackagesRead() const { return m_nRead; }
    size_t Packages() const { return m_packages.size(); }
    const Problem& LastProblem() const { return m_problem; }

    // Whole, as "/usr/bin/tar"; folder and name of it, "/usr/bin" and "tar". In UTF-8.
    std::string_view Path(size_t nRow) const;
    std::string_view Folder(size_t nRow) const;
    std::string_view Name(size_t nRow) const;
    const Package& PackageOf(size_t nRow) const { return *m_packages[m_rows[nRow].nPackage]; }

private:
    struct Row {
        const char* pPath;  // in one of the lists
        std::uint32_t nLength;
        std::uint32_t nPackage;
    };

    PackageStore m_store;
    std::vector<const Package*> m_packages;
    size_t m_nRead = 0;
    std::deque<std::string> m_lists;
    std::vector<Row> m_rows;
    Problem m_problem;
};
