// Files of reports of any values: what was read from one is written and read again as it was.

#include "model/report_values.h"

#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static constexpr const char* kKeys[] = {
        "name=", "title=", "columns=", "sections=", "font.text="};
    static constexpr const char* kWords[] = {"\t",     "|",   "t", "size\t",
                                             "name\t", "12 ", "x", "\xE4"};
    std::string strText = "inventory report, version 1\nall columns=no\n";
    for (FuzzInput input(pData, nSize); !input.AtEnd(); strText += '\n') {
        strText += kKeys[input.Byte() % std::size(kKeys)];
        for (int n = input.Byte() % 16; n > 0; --n) {
            strText += kWords[input.Byte() % std::size(kWords)];
        }
    }
    ReportValues values;
    size_t nLine = 0;
    FUZZ_CHECK(values.Parse(strText, nLine));
    const ReportDefinition report = values.Definition();
    FUZZ_CHECK(values.Parse(ReportValues(report).Format(), nLine));
    FUZZ_CHECK(values.Definition() == report);
    return 0;
}
