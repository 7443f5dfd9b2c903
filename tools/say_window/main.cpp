// say_window TITLE [ID]: prints, in UTF-8, what the window with that title, or its control with
// that id, tells a screen reader: a line for the control and each of its parts.
//
// say_window --ask: reads questions, a line each, from its input; each answer ends with a line that
// is a single point. Numbers are decimal; PART is a number of the window's, 0 the window itself.
//
//     window HANDLE         the window that is meant from now on, in hexadecimal digits
//     count                 how many parts there are
//     all FIRST COUNT       parts by position, as AccessibleChildren gives them
//     say PART              role, name, value, description, states, action
//     where PART            left, top, width and height on the screen
//     hit X Y               the part at a point of the screen
//     go PART DIRECTION     NAVDIR_
//     focus                 the part that has the focus
//     selection             all that is selected
//     select PART FLAGS     SELFLAG_
//     do PART               the default action
//     set PART TEXT         a new value
//     event PART            what an event that names the part leads to
//     beside                name of the parent, shortcut, and the window of the object
//     heard                 the events of the window since this was asked last
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <iostream>
#include <memory>
#include <oleacc.h>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Releaser {
    void operator()(IUnknown* p) const { p->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

std::string Narrow(std::wstring_view text) {
    std::string str(text.size() * 3, '\0');
    const int nBytes =
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), str.data(),
                              static_cast<int>(str.size()), nullptr, nullptr);
    str.resize(static_cast<size_t>(std::max(0, nBytes)));
    return str;
}

void Append(std::string& str, std::string_view more, std::string_view between) {
    if (!str.empty()) {
        str += between;
    }
    str += more;
}

std::string Code(HRESULT hr) {
    char sz[16];
    std::snprintf(sz, sizeof(sz), "0x%08lX", static_cast<unsigned long>(hr));
    return sz;
}

VARIANT Part(long nPart) {
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = nPart;
    return part;
}

std::string Quoted(BSTR bstr) {
    const std::string str = '"' + Narrow({bstr, ::SysStringLen(bstr)}) + '"';
    ::SysFreeString(bstr);
    return str;
}

// What Windows calls a role or a state.
std::string NameOf(UINT(WINAPI* name)(DWORD, LPWSTR, UINT), DWORD dwCode) {
    wchar_t sz[100]{};
    name(dwCode, sz, 100);
    return Narrow(sz);
}

std::string StateNames(DWORD dwState) {
    std::string strAll;
    for (DWORD dwBit = 1; dwBit != 0; dwBit <<= 1) {
        if ((dwState & dwBit) != 0) {
            Append(strAll, NameOf(&::GetStateTextW, dwBit), " ");
        }
    }
    return strAll;
}

// The events of the window that is watched, as they came.
std::vector<std::string> s_heard;
HWND s_hWatched = nullptr;
constexpr long kMark = 0x71234567;  // an event of our own, behind all that came before
bool s_bMarkHeard = false;

void CALLBACK OnEvent(HWINEVENTHOOK, DWORD dwEvent, HWND hWnd, LONG nObject, LONG nChild, DWORD,
                      DWORD) {
    if (hWnd != s_hWatched || nObject != static_cast<LONG>(OBJID_CLIENT)) {
        return;
    }
    if (nChild == kMark) {
        s_bMarkHeard = true;
        return;
    }
    struct Name {
        DWORD dwEvent;
        const char* psz;
    };
    static constexpr Name kNames[] = {
        {EVENT_OBJECT_FOCUS, "focus"},
        {EVENT_OBJECT_SELECTION, "selection"},
        {EVENT_OBJECT_SELECTIONADD, "selection-add"},
        {EVENT_OBJECT_SELECTIONREMOVE, "selection-remove"},
        {EVENT_OBJECT_SELECTIONWITHIN, "selection-within"},
        {EVENT_OBJECT_STATECHANGE, "state"},
        {EVENT_OBJECT_NAMECHANGE, "name"},
        {EVENT_OBJECT_VALUECHANGE, "value"},
        {EVENT_OBJECT_DESCRIPTIONCHANGE, "description"},
        {EVENT_OBJECT_REORDER, "reorder"},
        {EVENT_OBJECT_LOCATIONCHANGE, "location"},
        {EVENT_OBJECT_TEXTSELECTIONCHANGED, "text-selection"},
    };
    const auto* pName = std::find_if(std::begin(kNames), std::end(kNames),
                                     [&](const Name& name) { return name.dwEvent == dwEvent; });
    s_heard.push_back((pName != std::end(kNames) ? pName->psz : Code(static_cast<long>(dwEvent))) +
                      ' ' + std::to_string(nChild));
}

void Pump() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        ::DispatchMessage(&msg);
    }
}

class Reader {
public:
    // The result of asking the window for its object.
    HRESULT Watch(HWND hWnd) {
        m_hWnd = s_hWatched = hWnd;
        m_object.reset();
        s_heard.clear();
        IAccessible* pObject = nullptr;
        const HRESULT hr =
            ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), reinterpret_cast<void**>(&pObject));
        m_object.reset(pObject);
        return hr;
    }

    std::string Answer(const std::string& strQuestion) {
        std::istringstream words(strQuestion);
        std::string strVerb;
        words >> strVerb;
        if (strVerb == "window") {
            unsigned long long nHandle = 0;
            words >> std::hex >> nHandle;
            return Code(Watch(reinterpret_cast<HWND>(static_cast<UINT_PTR>(nHandle))));
        }
        long n1 = 0;
        long n2 = 0;
        words >> n1 >> n2;
        if (strVerb == "heard") {
            return Heard();
        }
        if (m_object == nullptr) {
            return "no object";
        }
        return strVerb == "count"   ? Count()
               : strVerb == "all"   ? All(n1, n2)
               : strVerb == "say"   ? Say(n1)
               : strVerb == "where" ? Where(n1)
               : strVerb == "hit"
                   ? Found([&](VARIANT* p) { return m_object->accHitTest(n1, n2, p); })
               : strVerb == "go"
                   ? Found([&](VARIANT* p) { return m_object->accNavigate(n2, Part(n1), p); })
               : strVerb == "focus" ? Found([&](VARIANT* p) { return m_object->get_accFocus(p); })
               : strVerb == "selection"
                   ? Found([&](VARIANT* p) { return m_object->get_accSelection(p); })
               : strVerb == "select" ? Code(m_object->accSelect(n2, Part(n1)))
               : strVerb == "do"     ? Code(m_object->accDoDefaultAction(Part(n1)))
               : strVerb == "set"    ? Set(strQuestion)
               : strVerb == "event"  ? Event(n1)
               : strVerb == "beside" ? Beside()
                                     : "what is " + strVerb + "?";
    }

    std::string Count() {
        long nCount = 0;
        const HRESULT hr = m_object->get_accChildCount(&nCount);
        return SUCCEEDED(hr) ? std::to_string(nCount) : Code(hr);
    }

    std::string All(long nFirst, long nCount) {
        std::vector<VARIANT> parts(static_cast<size_t>(std::max(0L, nCount)));
        long nFound = 0;
        const HRESULT hr =
            ::AccessibleChildren(m_object.get(), nFirst, nCount, parts.data(), &nFound);
        std::string strAll = FAILED(hr) ? Code(hr) : "";
        for (long i = 0; i < nFound; ++i) {
            Append(strAll, SayFound(parts[static_cast<size_t>(i)]), "\n");
        }
        return strAll;
    }

    std::string Say(long nPart) { return SayOf(*m_object, nPart); }

private:
    static std::string SayOf(IAccessible& object, long nPart) {
        VARIANT role{};
        HRESULT hr = object.get_accRole(Part(nPart), &role);
        if (FAILED(hr)) {
            return Code(hr);
        }
        std::string str =
            role.vt == VT_I4 ? NameOf(&::GetRoleTextW, static_cast<DWORD>(role.lVal)) : "?";
        const auto add = [&](const char* pszWhat, auto get) {
            BSTR bstr = nullptr;
            const HRESULT hrText = (object.*get)(Part(nPart), &bstr);
            if (hrText == S_OK) {
                str += pszWhat + Quoted(bstr);
            } else if (FAILED(hrText)) {
                str += pszWhat + Code(hrText);
            }
        };
        add(" ", &IAccessible::get_accName);
        add(" value ", &IAccessible::get_accValue);
        add(" description ", &IAccessible::get_accDescription);
        VARIANT state{};
        hr = object.get_accState(Part(nPart), &state);
        str += " [" + (SUCCEEDED(hr) ? StateNames(static_cast<DWORD>(state.lVal)) : Code(hr)) + ']';
        add(" action ", &IAccessible::get_accDefaultAction);
        return str;
    }

    // A part that another call gave, by its number or as an object; the variant is used up.
    std::string SayFound(VARIANT& part) {
        if (part.vt == VT_I4) {
            return std::to_string(part.lVal) + ": " + Say(part.lVal);
        }
        std::string str = "no part";
        if (part.vt == VT_DISPATCH && part.pdispVal != nullptr) {
            IAccessible* pObject = nullptr;
            if (SUCCEEDED(part.pdispVal->QueryInterface(__uuidof(IAccessible),
                                                        reinterpret_cast<void**>(&pObject)))) {
                const Owned<IAccessible> object(pObject);
                str = "object: " + SayOf(*object, CHILDID_SELF);
            }
        }
        ::VariantClear(&part);
        return str;
    }

    // The text is all behind the blank after the part's number.
    std::string Set(const std::string& strQuestion) {
        std::istringstream words(strQuestion);
        std::string strVerb;
        std::string strText;
        long nPart = 0;
        words >> strVerb >> nPart;
        words.get();
        std::getline(words, strText);
        const int nBytes = static_cast<int>(strText.size());
        std::wstring strWide(strText.size(), L'\0');
        strWide.resize(static_cast<size_t>(::MultiByteToWideChar(
            CP_UTF8, 0, strText.data(), nBytes, strWide.data(), static_cast<int>(strWide.size()))));
        const BSTR bstr = ::SysAllocStringLen(strWide.data(), static_cast<UINT>(strWide.size()));
        const HRESULT hr = m_object->put_accValue(Part(nPart), bstr);
        ::SysFreeString(bstr);
        return Code(hr);
    }

    // The numbers of what a call gives.
    template <class Call>
    std::string Found(Call call) {
        VARIANT part{};
        const HRESULT hr = call(&part);
        if (hr != S_OK) {
            return hr == S_FALSE ? "none" : Code(hr);
        }
        std::string str = part.vt == VT_I4 ? std::to_string(part.lVal) : "object";
        IEnumVARIANT* pEnum = nullptr;
        if (part.vt == VT_UNKNOWN && SUCCEEDED(part.punkVal->QueryInterface(
                                         IID_IEnumVARIANT, reinterpret_cast<void**>(&pEnum)))) {
            const Owned<IEnumVARIANT> parts(pEnum);
            str.clear();
            VARIANT one{};
            ULONG nGot = 0;
            while (parts->Next(1, &one, &nGot) == S_OK && nGot == 1) {
                Append(str, std::to_string(one.lVal), " ");
            }
        }
        ::VariantClear(&part);
        return str;
    }

    std::string Where(long nPart) {
        long aPlace[4]{};
        const HRESULT hr =
            m_object->accLocation(&aPlace[0], &aPlace[1], &aPlace[2], &aPlace[3], Part(nPart));
        if (hr != S_OK) {
            return hr == S_FALSE ? "nowhere" : Code(hr);
        }
        std::string str;
        for (const long n : aPlace) {
            Append(str, std::to_string(n), " ");
        }
        return str;
    }

    std::string Event(long nPart) {
        IAccessible* pObject = nullptr;
        VARIANT part{};
        const HRESULT hr = ::AccessibleObjectFromEvent(m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                                       static_cast<DWORD>(nPart), &pObject, &part);
        if (FAILED(hr)) {
            return Code(hr);
        }
        const Owned<IAccessible> object(pObject);
        return SayOf(*object, part.lVal);
    }

    std::string Beside() {
        std::string str;
        IDispatch* pParent = nullptr;
        if (SUCCEEDED(m_object->get_accParent(&pParent)) && pParent != nullptr) {
            VARIANT parent{};
            parent.vt = VT_DISPATCH;
            parent.pdispVal = pParent;
            str += "parent " + SayFound(parent);
        }
        BSTR bstr = nullptr;
        if (m_object->get_accKeyboardShortcut(Part(CHILDID_SELF), &bstr) == S_OK) {
            str += "\nshortcut " + Quoted(bstr);
        }
        HWND hWnd = nullptr;
        ::WindowFromAccessibleObject(m_object.get(), &hWnd);
        return str + (hWnd == m_hWnd ? "\nits window" : "\nanother window");
    }

    // What was notified before the question is delivered before our own mark.
    std::string Heard() {
        s_bMarkHeard = false;
        ::NotifyWinEvent(EVENT_OBJECT_HELPCHANGE, m_hWnd, OBJID_CLIENT, kMark);
        while (!s_bMarkHeard && ::IsWindow(m_hWnd)) {
            Pump();
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
        Pump();
        std::string str;
        for (const std::string& strEvent : s_heard) {
            Append(str, strEvent, ", ");
        }
        s_heard.clear();
        return str;
    }

    HWND m_hWnd = nullptr;
    Owned<IAccessible> m_object;
};

int AnswerAll() {
    Reader reader;
    const HWINEVENTHOOK hHook =
        ::SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_TEXTSELECTIONCHANGED, nullptr, &OnEvent,
                          0, 0, WINEVENT_OUTOFCONTEXT);
    std::string strQuestion;
    while (std::getline(std::cin, strQuestion)) {
        if (!strQuestion.empty() && strQuestion.back() == '\r') {
            strQuestion.pop_back();
        }
        std::cout << reader.Answer(strQuestion) << "\n.\n" << std::flush;
    }
    ::UnhookWinEvent(hHook);
    return 0;
}

// A window below another by its id.
struct Search {
    int nId;
    HWND hFound;

    static BOOL CALLBACK Look(HWND hChild, LPARAM lParam) {
        auto* pSearch = reinterpret_cast<Search*>(lParam);
        if (::GetDlgCtrlID(hChild) == pSearch->nId) {
            pSearch->hFound = hChild;
        }
        return pSearch->hFound == nullptr;
    }
};

int PrintWindow(const wchar_t* pszTitle, const wchar_t* pszId) {
    constexpr long kAtOnce = 200;
    HWND hWnd = ::FindWindowW(nullptr, pszTitle);
    if (hWnd != nullptr && pszId != nullptr) {
        Search search{static_cast<int>(std::wcstol(pszId, nullptr, 10)), nullptr};
        ::EnumChildWindows(hWnd, &Search::Look, reinterpret_cast<LPARAM>(&search));
        hWnd = search.hFound;
    }
    Reader reader;
    if (hWnd == nullptr || FAILED(reader.Watch(hWnd))) {
        std::cerr << "say_window: there is no such window\n";
        return 1;
    }
    std::cout << reader.Say(CHILDID_SELF) << '\n';
    const std::string strParts = reader.All(0, kAtOnce);
    if (!strParts.empty()) {
        std::cout << strParts << '\n';
    }
    return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 1;
    }
    int nResult = 2;
    if (argc == 2 && std::wcscmp(argv[1], L"--ask") == 0) {
        nResult = AnswerAll();
    } else if (argc >= 2) {
        nResult = PrintWindow(argv[1], argc > 2 ? argv[2] : nullptr);
    } else {
        std::cerr << "say_window TITLE [ID]\n";
    }
    ::CoUninitialize();
    return nResult;
}
