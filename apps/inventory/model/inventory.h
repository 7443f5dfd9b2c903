// What is installed on a machine: packages with version, size, state and dependencies, in sections.

#pragma once

#include <ctime>
#include <memory>
#include <string>
#include <vector>

struct Package {
    std::string strName;
    std::string strSection;
    std::string strVersion;
    std::string strArchitecture;
    std::string strState;    // "installed" where nothing is to be said
    std::string strSummary;  // one line
    long nSizeKiB = 0;
    std::time_t tInstalled = 0;             // 0: not known
    bool bUnusual = false;                  // in any state but properly installed
    bool bRequired = false;                 // the machine does not work without it
    std::vector<std::string> dependencies;  // one each, alternatives joined by " | "
    std::vector<std::string> provides;      // names beside its own that others may ask for
    // Its entry in the database, as that has it. Null: it comes from elsewhere.
    std::shared_ptr<const std::string> pStanza;
};

struct Section {
    std::string strName;
    std::vector<Package> packages;  // by name
};

class Inventory {
public:
    // Groups and sorts.
    void SetPackages(std::vector<Package> packages);
    const std::vector<Section>& Sections() const { return m_sections; }
    size_t CountPackages() const;

private:
    std::vector<Section> m_sections;  // by name
};

// "12 KiB", "3.4 MiB", "1.2 GiB".
std::string SizeText(long long nKiB);
// Local day and minute; empty for 0.
std::string DateText(std::time_t t);
