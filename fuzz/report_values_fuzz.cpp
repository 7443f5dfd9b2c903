// Files of reports of any values: what was read from one is written and read again as it was.

#include "model/report_values.h"

#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static constexpr const char* kWords[] = {"columns=",
                                             "sections=",
                                             "font.text=",
                                             "since=2026-02-",
                                             "all columns=no",
                                             "name=",
                                             "\n",
                                             "\n",
                                             "\t",
                                             "|",
                                             "size\t",
                                             "12 ",
                                             "9",
                                             "x"};
    std::string strText = "inventory report, version 1\n";
    for (FuzzInput input(pData, nSize); !input.AtEnd();) {
        const std::size_t n = input.Byte();
        strText += n < 128 ? kWords[n % std::size(kWords)] : std::string(1, static_cast<char>(n));
    }
    ReportValues values;
    size_t nLine = 0;
    values.Parse(strText, nLine);
    const ReportDefinition report = values.Definition();
    FUZZ_CHECK(values.Parse(ReportValues(report).Format(), nLine));
    FUZZ_CHECK(values.Definition() == report);
    return 0;
}
