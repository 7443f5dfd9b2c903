// What a package's entry in the database says beyond what the lists show. Entries come in the
// database's own encoding, UTF-8.

#pragma once

#include <string>
#include <string_view>
#include <vector>

// Lines of a text without their ends; a carriage return belongs to the end.
std::vector<std::string_view> Lines(std::string_view text);
// Without what is no text: a TAB, an ESC or a zero byte becomes a blank.
std::string Printable(std::string_view text);

struct StanzaField {
    std::string strName;
    std::string strValue;  // lines that continue it follow behind "\n", without their first blank
};
std::vector<StanzaField> StanzaFields(std::string_view stanza);
// Empty if there is no such field.
std::string StanzaValue(std::string_view stanza, std::string_view name);

// A description's paragraphs, a line each, with empty lines between; what is laid out already
// keeps its lines. The summary is not among them.
std::vector<std::string> Paragraphs(std::string_view description);

struct ConfigurationFile {
    std::string strPath;
    std::string strChecksum;  // MD5 as it was delivered, in hexadecimal digits
    bool bObsolete = false;   // the package does not have it any more
};
std::vector<ConfigurationFile> ConfigurationFiles(std::string_view conffiles);
