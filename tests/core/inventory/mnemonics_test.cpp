// What the inventory's resource scripts say of keys: letters in menus and dialogs, accelerators,
// and the status bar's text of each command; and that controls have room in their dialogs.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

const std::string kApplication = QV_SOURCES "/apps/inventory/";

std::string Trimmed(const std::string& str) {
    const size_t nFirst = str.find_first_not_of(" ,");
    return nFirst == std::string::npos
               ? ""
               : str.substr(nFirst, str.find_last_not_of(" ,") - nFirst + 1);
}

std::vector<std::string> LinesOf(const std::string& strFile) {
    std::ifstream file(strFile);
    EXPECT_TRUE(file.is_open()) << strFile;
    std::vector<std::string> lines;
    for (std::string strLine; std::getline(file, strLine);) {
        lines.push_back(Trimmed(strLine));
    }
    return lines;
}

std::vector<std::string> WordsOf(const std::string& strLine) {
    std::istringstream stream(strLine);
    std::vector<std::string> words(3);
    stream >> words[0] >> words[1] >> words[2];
    return words;
}

// With macros of whole lines and included scripts in their places.
std::vector<std::string> Script(const std::string& strFile) {
    static std::map<std::string, std::vector<std::string>> s_macros;
    std::vector<std::string> lines;
    std::vector<std::string>* pMacro = nullptr;
    const auto add = [&](const std::vector<std::string>& more) {
        lines.insert(lines.end(), more.begin(), more.end());
    };
    for (std::string strLine : LinesOf(strFile)) {
        const bool bGoesOn = strLine.ends_with('\\');
        strLine = Trimmed(bGoesOn ? strLine.substr(0, strLine.size() - 1) : strLine);
        const std::vector<std::string> words = WordsOf(strLine);
        if (pMacro != nullptr) {
            pMacro->push_back(strLine);
        } else if (words[0] == "#define" && bGoesOn) {
            pMacro = &s_macros[words[1]];
        } else if (words[0] == "#include" && words[1].find(".rc\"") != std::string::npos) {
            add(Script(kApplication + words[1].substr(1, words[1].size() - 2)));
        } else if (s_macros.contains(strLine)) {
            add(s_macros[strLine]);
        } else {
            lines.push_back(strLine);
        }
        pMacro = bGoesOn ? pMacro : nullptr;
    }
    return lines;
}

// A line of a resource: its word, its text, and the fields behind.
struct Entry {
    std::string strResource;
    std::string strKind;
    std::string strWord;
    std::string strText;
    std::vector<std::string> fields;
    std::vector<int> groups;  // the BEGINs around it, the innermost last

    bool Has(const std::string& strPart) const {
        return std::any_of(fields.begin(), fields.end(), [&](const std::string& str) {
            return str.find(strPart) != std::string::npos;
        });
    }
    bool IsItem() const { return strKind == "MENU" && !strText.empty(); }
};

void Split(const std::string& strLine, Entry& entry) {
    const size_t nQuote = strLine.find('"');
    const size_t nEnd = nQuote != std::string::npos ? strLine.find('"', nQuote + 1) : nQuote;
    size_t nFields = strLine.find_first_of(" ,");
    entry.strWord = Trimmed(strLine.substr(0, std::min(nFields, nQuote)));
    if (nEnd != std::string::npos) {
        entry.strText = strLine.substr(nQuote + 1, nEnd - nQuote - 1);
        nFields = nEnd + 1;
    }
    std::istringstream stream(nFields < strLine.size() ? strLine.substr(nFields) : "");
    for (std::string strField; std::getline(stream, strField, ',');) {
        if (const std::string str = Trimmed(strField); !str.empty()) {
            entry.fields.push_back(str);
        }
    }
}

std::vector<Entry> Entries(const std::vector<std::string>& lines) {
    static const std::set<std::string> kKinds = {"MENU", "DIALOG", "ACCELERATORS"};
    std::vector<Entry> entries;
    Entry around;
    int nGroup = 0;
    for (const std::string& strLine : lines) {
        const std::vector<std::string> words = WordsOf(strLine);
        if (around.groups.empty() && (kKinds.contains(words[1]) || words[0] == "STRINGTABLE")) {
            around.strResource = words[0];
            around.strKind = words[0] == "STRINGTABLE" ? words[0] : words[1];
        } else if (words[0] == "BEGIN") {
            around.groups.push_back(++nGroup);
        } else if (words[0] == "END") {
            around.groups.pop_back();
        } else if (!around.groups.empty() && !strLine.empty() && !strLine.starts_with("//")) {
            Split(strLine, entries.emplace_back(around));
        }
    }
    return entries;
}

const std::vector<Entry>& All() {
    static const std::vector<Entry> s_entries = Entries(Script(kApplication + "inventory.rc"));
    return s_entries;
}

// For a name of the application's own; others stay.
std::string Number(const std::string& strId) {
    static const std::map<std::string, std::string> s_numbers = [] {
        std::map<std::string, std::string> numbers;
        for (const std::string& strLine : LinesOf(kApplication + "resource.h")) {
            const std::vector<std::string> words = WordsOf(strLine);
            numbers[words[1]] = words[2];
        }
        return numbers;
    }();
    const auto it = s_numbers.find(strId);
    return it != s_numbers.end() ? it->second : strId;
}

// Those of the fields that are numbers.
std::vector<int> Numbers(const std::vector<std::string>& fields) {
    std::vector<int> numbers;
    for (const std::string& strField : fields) {
        std::istringstream stream(strField);
        for (std::string str; std::getline(stream, str, ',');) {
            const std::string strNumber = Trimmed(str);
            if (!strNumber.empty() &&
                strNumber.find_first_not_of("-0123456789") == std::string::npos) {
                numbers.push_back(std::stoi(strNumber));
            }
        }
    }
    return numbers;
}

// 0: none.
char LetterOf(const std::string& strText) {
    for (size_t i = 0; i + 1 < strText.size(); ++i) {
        if (strText[i] == '&' && strText[++i] != '&') {
            return static_cast<char>(std::toupper(static_cast<unsigned char>(strText[i])));
        }
    }
    return 0;
}

// Of the main window's menus.
std::string LettersOfFrame() {
    std::string letters;
    for (const Entry& entry : All()) {
        const bool bOfFrame = entry.strResource == "IDR_MAINFRAME" && entry.groups.size() == 1;
        letters += entry.IsItem() && bOfFrame ? std::string(1, LetterOf(entry.strText)) : "";
    }
    return letters;
}

// What is taken around a page: by the buttons of its sheet, or the menus of its frame.
std::string LettersAround(const std::string& strDialog) {
    std::string letters;
    if (strDialog.starts_with("IDD_REPORT_")) {
        letters = "BNF";
    } else if (strDialog.starts_with("IDD_PREFERENCES_")) {
        letters = "A";
    } else if (strDialog == "IDD_PACKAGE_BAR") {
        letters = LettersOfFrame();
    }
    return letters;
}

// The texts of controls that a source makes, those with a letter.
std::vector<std::string> LetteredTexts(const std::string& strSource) {
    std::vector<std::string> texts;
    for (const std::string& strLine : LinesOf(kApplication + strSource)) {
        std::istringstream stream(strLine);
        std::string strText;
        for (bool bQuoted = false; std::getline(stream, strText, '"'); bQuoted = !bQuoted) {
            if (bQuoted && LetterOf(strText) != 0) {
                texts.push_back(strText);
            }
        }
    }
    return texts;
}

}  // namespace

TEST(Mnemonics, EachItemOfAMenuHasALetterOfItsOwn) {
    std::map<int, std::map<char, std::string>> taken;
    int nItems = 0;
    for (const Entry& entry : All()) {
        // The names of menus that come up at a control are never shown.
        const bool bShown = entry.groups.size() > 1 || !entry.strResource.ends_with("CONTEXT");
        if (!entry.IsItem() || !bShown) {
            continue;
        }
        ++nItems;
        const char ch = LetterOf(entry.strText);
        EXPECT_NE(ch, 0) << entry.strResource << ": " << entry.strText;
        const auto [it, bNew] = taken[entry.groups.back()].try_emplace(ch, entry.strText);
        EXPECT_TRUE(bNew) << entry.strResource << ": " << entry.strText << ", " << it->second;
    }
    EXPECT_GT(nItems, 150) << "the scripts were read";
}

TEST(Mnemonics, EachControlOfADialogIsReachedByALetterOfItsOwn) {
    static const std::set<std::string> kButtons = {"PUSHBUTTON", "AUTORADIOBUTTON", "AUTOCHECKBOX"};
    static const std::set<std::string> kInputs = {"EDITTEXT", "COMBOBOX", "LISTBOX"};
    std::map<std::string, std::map<char, std::string>> taken;
    char chBefore = 0;
    int nControls = 0;
    for (const Entry& entry : All()) {
        if (entry.strKind != "DIALOG") {
            continue;
        }
        if (!taken.contains(entry.strResource)) {
            taken[entry.strResource] = {};
            for (const char ch : LettersAround(entry.strResource)) {
                taken[entry.strResource][ch] = "what is around the page";
            }
        }
        const char ch = LetterOf(entry.strText);
        if (ch != 0) {
            const auto [it, bNew] = taken[entry.strResource].try_emplace(ch, entry.strText);
            EXPECT_TRUE(bNew) << entry.strResource << ": " << entry.strText << ", " << it->second;
        }
        // Buttons that draw themselves show images, or their text as it is.
        const bool bOther = entry.Has("BS_OWNERDRAW") || entry.Has("IDCANCEL");
        if (kButtons.contains(entry.strWord) && !bOther) {
            ++nControls;
            EXPECT_NE(ch, 0) << entry.strResource << ": " << entry.strText;
        } else if (kInputs.contains(entry.strWord) || entry.Has("DATETIMEPICK_CLASS")) {
            ++nControls;
            EXPECT_NE(chBefore, 0) << entry.strResource << ": " << entry.fields[0];
        }
        chBefore = ch;  // a label is of the control behind it
    }
    EXPECT_GT(nControls, 50) << "the scripts were read";
}

// In units of a dialog, which rounds to pixels differently for each size of the system's fonts:
// what ends where its page does loses its edge.
TEST(Dialogs, ControlsEndBeforeTheRightEdge) {
    std::map<std::string, int> widths;
    for (const std::string& strLine : Script(kApplication + "inventory.rc")) {
        const std::vector<std::string> words = WordsOf(strLine);
        if (words[1] == "DIALOG") {
            widths[words[0]] = Numbers({Trimmed(strLine.substr(strLine.find("DIALOG") + 6))})[2];
        }
    }
    int nControls = 0;
    for (const Entry& entry : All()) {
        // The one control of these fills them.
        const bool bFilled = entry.strResource.starts_with("IDD_DETAILS_") ||
                             entry.strResource.starts_with("IDD_COMPARE_");
        const std::vector<int> numbers = Numbers(entry.fields);
        if (entry.strKind == "DIALOG" && !bFilled && numbers.size() >= 4) {
            ++nControls;
            EXPECT_LT(numbers[numbers.size() - 4] + numbers[numbers.size() - 2],
                      widths[entry.strResource])
                << entry.strResource << ": " << entry.strText << " " << entry.fields[0];
        }
    }
    EXPECT_GT(nControls, 100) << "the scripts were read";
}

TEST(Mnemonics, ButtonsBesideAPageTakeNoLetterFromEachOtherOrFromTheMenus) {
    const std::map<std::string, size_t> kLettered = {{"pages/report_page.cpp", 11},
                                                     {"pages/log_page.cpp", 2}};
    for (const auto& [strSource, nTexts] : kLettered) {
        std::string letters = LettersOfFrame();
        const std::vector<std::string> texts = LetteredTexts(strSource);
        EXPECT_EQ(texts.size(), nTexts) << strSource;
        for (const std::string& strText : texts) {
            EXPECT_EQ(letters.find(LetterOf(strText)), std::string::npos) << strText;
            letters += LetterOf(strText);
        }
    }
}

TEST(Mnemonics, MenusAndAcceleratorsSayTheSameOfKeys) {
    using Key = std::pair<std::string, std::string>;  // frame and command, key
    // What controls and edits take by themselves.
    static const std::set<std::string> kOfControls = {"Ctrl+Z", "Ctrl+Y", "Ctrl+X", "Ctrl+C",
                                                      "Ctrl+V", "Ctrl+A", "Enter"};
    std::set<Key> keys;
    std::set<Key> once;
    std::set<Key> shown;
    for (const Entry& entry : All()) {
        if (entry.strKind == "ACCELERATORS") {
            std::string strKey =
                entry.strText.empty() ? entry.strWord.substr(strlen("VK_")) : entry.strText;
            strKey = strKey == "TAB" ? "Tab" : strKey;
            strKey = (entry.Has("SHIFT") ? "Shift+" : "") + strKey;
            strKey = (entry.Has("CONTROL") ? "Ctrl+" : "") + strKey;
            keys.insert({entry.strResource + " " + Number(entry.fields[0]), strKey});
            EXPECT_TRUE(once.insert({entry.strResource, strKey}).second) << strKey << " twice";
        }
    }
    EXPECT_GT(keys.size(), 25u) << "the scripts were read";
    for (const Entry& entry : All()) {
        const size_t nTab = entry.strText.find("\\t");
        if (entry.strWord != "MENUITEM" || nTab == std::string::npos) {
            continue;
        }
        const bool bOfMain = entry.strResource == "IDR_CONTEXT";
        const bool bContext = entry.strResource.ends_with("CONTEXT");
        const std::string strFrame = bOfMain    ? "IDR_MAINFRAME"
                                     : bContext ? "IDR_COMPARISON"
                                                : entry.strResource;
        const Key key(strFrame + " " + Number(entry.fields[0]), entry.strText.substr(nTab + 2));
        EXPECT_TRUE(keys.contains(key) || kOfControls.contains(key.second))
            << strFrame << ": " << entry.strText;
        shown.insert(key);
    }
    for (const Key& key : keys) {
        EXPECT_TRUE(shown.contains(key)) << key.first << ": no menu says " << key.second;
    }
}

TEST(Mnemonics, TheStatusBarSaysWhatEachCommandDoes) {
    std::set<std::string> texts;
    for (const Entry& entry : All()) {
        if (entry.strKind == "STRINGTABLE") {
            EXPECT_TRUE(texts.insert(Number(entry.strWord)).second) << entry.strWord << " twice";
            EXPECT_FALSE(entry.strText.empty() || entry.strText.starts_with("\\n"))
                << entry.strWord;
        }
    }
    for (const Entry& entry : All()) {
        if (entry.strWord == "MENUITEM" && !entry.strText.empty()) {
            EXPECT_TRUE(texts.contains(Number(entry.fields[0]))) << entry.strText;
        }
    }
    EXPECT_GT(texts.size(), 80u) << "the scripts were read";
}
