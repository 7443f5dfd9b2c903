#include "model/stanza.h"

#include <algorithm>

namespace {

bool IsBlank(char ch) {
    return ch == ' ' || ch == '\t';
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

// Takes the last word off a line.
std::string_view LastWord(std::string_view& line) {
    const size_t nBlank = line.find_last_of(" \t");
    const std::string_view word = line.substr(nBlank == std::string_view::npos ? 0 : nBlank + 1);
    line = Trimmed(line.substr(0, line.size() - word.size()));
    return word;
}

}  // namespace

std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const size_t nEnd = text.find('\n');
        std::string_view line = text.substr(0, nEnd);
        text.remove_prefix(nEnd == std::string_view::npos ? text.size() : nEnd + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

std::string Printable(std::string_view text) {
    std::string strOut(text);
    std::replace_if(
        strOut.begin(), strOut.end(),
        [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == '\x7F'; }, ' ');
    return strOut;
}

std::vector<StanzaField> StanzaFields(std::string_view stanza) {
    std::vector<StanzaField> fields;
    for (const std::string_view line : Lines(stanza)) {
        const size_t nColon = line.find(':');
        if (!line.empty() && IsBlank(line[0])) {
            if (!fields.empty()) {
                (fields.back().strValue += '\n') += line.substr(1);
            }
        } else if (nColon != std::string_view::npos) {
            fields.push_back({std::string(line.substr(0, nColon)),
                              std::string(Trimmed(line.substr(nColon + 1)))});
        }
    }
    return fields;
}

std::string StanzaValue(std::string_view stanza, std::string_view name) {
    for (StanzaField& field : StanzaFields(stanza)) {
        if (field.strName == name) {
            return std::move(field.strValue);
        }
    }
    return "";
}

std::vector<std::string> Paragraphs(std::string_view description) {
    std::vector<std::string> lines;
    bool bContinues = false;
    const std::vector<std::string_view> given = Lines(description);
    for (size_t i = 1; i < given.size(); ++i) {
        const std::string_view line = given[i];
        if (line == "." || Trimmed(line).empty()) {
            lines.emplace_back();
            bContinues = false;
        } else if (bContinues && !IsBlank(line[0])) {
            (lines.back() += ' ') += Trimmed(line);
        } else {
            lines.emplace_back(line);
            bContinues = !IsBlank(line[0]);
        }
    }
    return lines;
}

std::vector<ConfigurationFile> ConfigurationFiles(std::string_view conffiles) {
    std::vector<ConfigurationFile> files;
    for (std::string_view line : Lines(conffiles)) {
        line = Trimmed(line);
        ConfigurationFile file;
        std::string_view word = LastWord(line);
        while (word == "obsolete" || word == "remove-on-upgrade") {
            file.bObsolete = true;
            word = LastWord(line);
        }
        file.strChecksum = word;
        file.strPath = line;
        if (!file.strPath.empty()) {
            files.push_back(std::move(file));
        }
    }
    return files;
}
