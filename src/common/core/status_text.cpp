#include "common/core/status_text.h"

namespace qv {

namespace {

constexpr std::size_t kMostBytes = 300;  // of each text in the compact form
constexpr std::size_t kMostCauses = 3;   // the last one included
constexpr std::string_view kDots = "...";
constexpr std::string_view kIndent = "    ";
constexpr std::string_view kCauseIndent = "        ";

bool IsLineBreak(char ch) {
    return ch == '\r' || ch == '\n';
}

// Bytes like these are part of no character of several bytes, whatever the code page.
bool IsControl(char ch) {
    return static_cast<unsigned char>(ch) < ' ';
}

// "Error 5 (system)"
void AppendCode(std::string& strOut, const StatusRecord& record) {
    strOut.append(record.severity).append(" ").append(std::to_string(record.dwCode));
    if (record.bSystem) {
        strOut += " (system)";
    }
}

// On one line, with single blanks between words.
void AppendShort(std::string& strOut, std::string_view text, const MultiByte& multiByte) {
    const std::size_t nStart = strOut.size();
    bool bBlank = false;
    while (!text.empty()) {
        const std::size_t nChar = multiByte.CharBytes(text);
        const bool bSeparates = IsControl(text[0]) || text[0] == ' ';
        if (!bSeparates) {
            if (strOut.size() + nChar + bBlank > nStart + kMostBytes) {
                strOut += kDots;
                return;
            }
            strOut.append(bBlank ? " " : "").append(text.substr(0, nChar));
        }
        bBlank = bSeparates && strOut.size() > nStart;
        text.remove_prefix(nChar);
    }
}

void AppendCompact(std::string& strOut, const StatusRecord& record, const MultiByte& multiByte) {
    const std::size_t nBefore = strOut.size();
    AppendShort(strOut, record.text, multiByte);
    if (strOut.size() == nBefore) {
        AppendCode(strOut, record);
    }
    std::string strWhere;
    AppendShort(strWhere, record.where, multiByte);
    if (!strWhere.empty()) {
        strOut.append(" (").append(strWhere).append(")");
    }
}

// All lines of a text, the first one behind label. Control characters become blanks: one of them
// ends a text file for programs that read it as text.
void AppendLines(std::string& strOut, std::string_view indent, std::string_view label,
                 std::string_view text, std::string_view lineEnd) {
    if (text.empty()) {
        return;
    }
    strOut.append(indent).append(label);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        }
        if (IsLineBreak(text[i])) {
            strOut.append(lineEnd).append(indent);
        } else {
            strOut += IsControl(text[i]) && text[i] != '\t' ? ' ' : text[i];
        }
    }
    strOut += lineEnd;
}

}  // namespace

std::string CompactStatus(std::span<const StatusRecord> chain, std::string_view name,
                          const MultiByte& multiByte) {
    std::string strOut;
    if (!name.empty()) {
        AppendShort(strOut, name, multiByte);
        strOut += ": ";
    }
    AppendCompact(strOut, chain[0], multiByte);
    const std::size_t nCauses = chain.size() - 1;
    for (std::size_t i = 1; i <= nCauses; ++i) {
        if (nCauses > kMostCauses && i == kMostCauses) {
            i = nCauses;
            strOut.append("\n(").append(std::to_string(nCauses - kMostCauses)).append(" more)");
        }
        strOut += "\nCause: ";
        AppendCompact(strOut, chain[i], multiByte);
    }
    return strOut;
}

std::string StatusEntry(std::span<const StatusRecord> chain, std::string_view name,
                        std::string_view when, std::string_view lineEnd) {
    std::string strOut(kEntryMark);
    strOut.append(when).append("  ");
    for (std::size_t i = 0; i < chain.size(); ++i) {
        if (i > 0) {
            strOut.append(kIndent).append("Cause: ");
        }
        AppendCode(strOut, chain[i]);
        strOut += lineEnd;
        if (i == 0) {
            AppendLines(strOut, kIndent, "From: ", name, lineEnd);
        }
        const std::string_view indent = i == 0 ? kIndent : kCauseIndent;
        AppendLines(strOut, indent, "", chain[i].text, lineEnd);
        AppendLines(strOut, indent, "Where: ", chain[i].where, lineEnd);
    }
    return strOut;
}

}  // namespace qv
