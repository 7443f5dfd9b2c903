// The text window in a real window, beside the platform's edit control of many lines in the same
// process: same size, font and text, both wrapping.

#include "QVControls.h"
#include "window_bench.h"

#include <cstdio>
#include <string>

namespace {

using bench::Compare;
using bench::Frame;

constexpr int kFileLines = 85000;
constexpr int kLineLength = 120;
constexpr int kLargeFileLines = 100 * 1024 * 1024 / (kLineLength + 2);
constexpr int kSlowRuns = 3;
const CSize kWindow(500, 600);

// Words of one to nine letters, so that lines break at different places.
std::string Line(int nLine) {
    std::string str = std::to_string(nLine);
    for (unsigned n = static_cast<unsigned>(nLine); str.size() < kLineLength;) {
        n = n * 1664525 + 1013904223;
        str += ' ';
        str.append(1 + (n >> 16) % 9, static_cast<char>('a' + (n >> 24) % 26));
    }
    str.resize(kLineLength);
    return str;
}

class TextFile {
public:
    explicit TextFile(int nLines) {
        for (int i = 0; i < nLines; ++i) {
            strText.append(Line(i)).append("\r\n");
        }
        char szFolder[MAX_PATH];
        ::GetTempPath(MAX_PATH, szFolder);
        ::GetTempFileName(szFolder, "qvb", 0, szPath);
        CFile file(szPath, CFile::modeCreate | CFile::modeWrite);
        file.Write(strText.data(), static_cast<UINT>(strText.size()));
    }
    ~TextFile() { std::remove(szPath); }

    std::string strText;
    char szPath[MAX_PATH];
};

class Ours {
public:
    Ours() {
        CRect rc(CPoint(0, 0), kWindow);
        text.Create(rc, &m_frame, 1, 1);
    }
    void Open(const char* pszPath) {
        text.LoadFile(pszPath, 0);
        text.UpdateWindow();
        ::GdiFlush();
    }
    // Seconds for a step of one row, painted.
    double TimeLineDown() {
        constexpr int kSteps = 100;
        text.SendMessage(WM_VSCROLL, SB_TOP);
        return bench::Time([&] {
                   for (int i = 0; i < kSteps; ++i) {
                       text.SendMessage(WM_VSCROLL, SB_LINEDOWN);
                   }
                   ::GdiFlush();
               }) /
               kSteps;
    }
    // Seconds for another width, painted.
    double TimeResize() {
        m_nNarrower = 41 - m_nNarrower;
        return bench::Time([&] {
            text.SetWindowPos(nullptr, 0, 0, kWindow.cx - m_nNarrower, kWindow.cy,
                              SWP_NOMOVE | SWP_NOZORDER);
            text.UpdateWindow();
            ::GdiFlush();
        });
    }

    int Rows() const { return text.NumRows(); }

private:
    Frame m_frame{kWindow};
    int m_nNarrower = 0;

public:
    QVTextWnd text;
};

class Theirs {
public:
    Theirs()
        : m_hEdit(::CreateWindowEx(WS_EX_CLIENTEDGE, "EDIT", "",
                                   WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE, 0, 0,
                                   kWindow.cx, kWindow.cy, m_frame.m_hWnd,
                                   reinterpret_cast<HMENU>(1), nullptr, nullptr)) {
        ::SendMessage(m_hEdit, WM_SETFONT,
                      reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        ::SendMessage(m_hEdit, EM_SETLIMITTEXT, 0x7FFFFFFE, 0);
    }
    void Open(const std::string& strText) {
        ::SetWindowText(m_hEdit, strText.c_str());
        ::UpdateWindow(m_hEdit);
        ::GdiFlush();
    }
    int Rows() const { return static_cast<int>(::SendMessage(m_hEdit, EM_GETLINECOUNT, 0, 0)); }

private:
    Frame m_frame{kWindow};
    HWND m_hEdit;
};

// Seconds to open the file in a new window.
template <class Side, class Source>
double TimeOpen(const Source& source, int nLeastRows) {
    Side side;
    const double time = bench::Time([&] { side.Open(source); });
    const int nRows = side.Rows();
    if (nRows < nLeastRows) {
        std::printf("only %d rows\n", nRows);
    }
    return time;
}

void MeasureOpen() {
    const TextFile file(kFileLines);
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int i = 0; i < kSlowRuns; ++i) {
        ourTimes.push_back(TimeOpen<Ours>(file.szPath, kFileLines + 1));
        theirTimes.push_back(TimeOpen<Theirs>(file.strText, kFileLines + 1));
    }
    Compare("text/open-85k", 1e3, "ms", {bench::Median(ourTimes), bench::Median(theirTimes)});
    const TextFile large(kLargeFileLines);
    bench::Figure("text/open-100mb", TimeOpen<Ours>(large.szPath, kLargeFileLines + 1) * 1e3, "ms");
}

void MeasureScroll(const char* pszName, int nLines) {
    Ours ours;
    for (int i = 0; i < nLines; ++i) {
        ours.text.AddText(("line " + std::to_string(i)).c_str(), 0);
    }
    ours.text.CalcLayout();
    ours.TimeLineDown();
    bench::Figure(pszName, bench::MedianOf([&] { return ours.TimeLineDown(); }) * 1e6, "us");
}

int RowsThatShow() {
    Ours ours;
    CRect rc;
    ours.text.GetClientRect(&rc);
    CClientDC dc(&ours.text);
    ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    return rc.Height() / static_cast<int>(dc.GetTextExtent("O", 1).cy);
}

}  // namespace

void MeasureText() {
    MeasureOpen();
    MeasureScroll("text/scroll-line-100", RowsThatShow() + 100);
    MeasureScroll("text/scroll-line-1m", 1000000);
    Ours ours;
    const TextFile file(10000);
    ours.Open(file.szPath);
    bench::Figure("text/resize-10k", bench::MedianOf([&] { return ours.TimeResize(); }) * 1e3,
                  "ms");
}
