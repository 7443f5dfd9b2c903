#include "ocx/font_property.h"

#include <algorithm>

namespace ocx {

/// The font holds it, and it outlives the property where somebody shares the font.
class FontProperty::Sink : public OwnObject<IPropertyNotifySink> {
public:
    explicit Sink(FontProperty& owner) : m_pOwner(&owner) {}

    void Forget() { m_pOwner = nullptr; }

    STDMETHODIMP OnChanged(DISPID) override {
        return Guarded([this] {
            if (m_pOwner != nullptr) {
                m_pOwner->m_bSet = true;
                m_pOwner->m_changed();
            }
            return S_OK;
        });
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

private:
    FontProperty* m_pOwner;
};

FontProperty::FontProperty(std::function<Ref<IFont>()> first, std::function<void()> changed)
    : m_first(std::move(first)), m_changed(std::move(changed)) {}

FontProperty::~FontProperty() {
    Unwatch();
}

void FontProperty::Unwatch() {
    if (!m_sink) {
        return;
    }
    m_sink->Forget();
    Ref<IConnectionPoint> point;
    if (const auto points = Ref<IConnectionPointContainer>::Of(m_font.Get());
        points && SUCCEEDED(points->FindConnectionPoint(IID_IPropertyNotifySink, point.Out()))) {
        point->Unadvise(m_dwCookie);
    }
    m_sink.Release();
}

void FontProperty::Watch(Ref<IFont> font) {
    Unwatch();
    m_font = std::move(font);
    const Ref<Sink> sink(new Sink(*this));
    Ref<IConnectionPoint> point;
    if (const auto points = Ref<IConnectionPointContainer>::Of(m_font.Get());
        points && SUCCEEDED(points->FindConnectionPoint(IID_IPropertyNotifySink, point.Out())) &&
        SUCCEEDED(point->Advise(sink.Get(), &m_dwCookie))) {
        m_sink = sink;
    }
}

void FontProperty::Reset() {
    Unwatch();
    m_font.Release();
    m_bSet = false;
}

IFont* FontProperty::Get() {
    if (!m_font) {
        Ref<IFont> font;
        const Ref<IFont> first = m_first();
        if (!first || FAILED(first->Clone(font.Out()))) {
            FONTDESC desc = {};
            desc.cbSizeofstruct = sizeof desc;
            wchar_t szName[] = L"MS Sans Serif";
            desc.lpstrName = szName;
            desc.cySize.int64 = 8 * 10000 + 2500;
            desc.sWeight = FW_NORMAL;
            desc.sCharset = DEFAULT_CHARSET;
            Check(::OleCreateFontIndirect(&desc, IID_IFont, reinterpret_cast<void**>(font.Out())));
        }
        Watch(std::move(font));
    }
    return m_font.Get();
}

void FontProperty::Put(IUnknown* pFont, bool bShare) {
    auto font = Ref<IFont>::Of(pFont);
    if (!font) {
        throw Refusal{kInvalidValue, L"The object is no font.", 0};
    }
    if (!bShare) {
        Ref<IFont> copy;
        Check(font->Clone(copy.Out()));
        font = std::move(copy);
    }
    Watch(std::move(font));
    m_bSet = true;
    m_changed();
}

void FontProperty::CallFont(const Arguments& arguments, VARIANT* pResult) {
    if (arguments.IsPut()) {
        Put(arguments.Object(0), arguments.Verb() == DISPATCH_PROPERTYPUTREF);
    } else {
        GiveObject(pResult, Get());
    }
}

void FontProperty::CallPart(Part part, const Arguments& arguments, VARTYPE vt, VARIANT* pResult) {
    using Getter = HRESULT (STDMETHODCALLTYPE IFont::*)(WINBOOL*);
    using Setter = HRESULT (STDMETHODCALLTYPE IFont::*)(WINBOOL);
    constexpr Getter kGetters[] = {&IFont::get_Bold, &IFont::get_Italic, &IFont::get_Underline,
                                   &IFont::get_Strikethrough};
    constexpr Setter kSetters[] = {&IFont::put_Bold, &IFont::put_Italic, &IFont::put_Underline,
                                   &IFont::put_Strikethrough};
    constexpr double kPoint = 10000;  // currency counts ten thousandths
    const Ref<IFont> font(Get());
    const auto nFlag = static_cast<int>(part) - static_cast<int>(Part::Bold);
    if (arguments.IsPut()) {
        switch (part) {
            case Part::Name: {
                const std::wstring_view name = arguments.Text(0);
                if (name.empty() || name.size() >= LF_FACESIZE) {
                    throw Refusal{kInvalidValue, L"Invalid font name", 0};
                }
                wchar_t szName[LF_FACESIZE] = L"";
                std::ranges::copy(name, szName);
                Check(font->put_Name(szName));
                break;
            }
            case Part::Size: {
                constexpr double kLargest = 2048;
                const double fSize = arguments.Real(0);
                if (!(fSize > 0 && fSize <= kLargest)) {
                    throw Refusal{kInvalidValue, L"Invalid font size", 0};
                }
                CY size;
                size.int64 = static_cast<LONGLONG>(fSize * kPoint + 0.5);
                Check(font->put_Size(size));
                break;
            }
            default:
                Check((font.Get()->*kSetters[nFlag])(arguments.Bool(0)));
                break;
        }
        return;
    }
    switch (part) {
        case Part::Name: {
            Variant name;
            Check(font->get_Name(&name.Get()->bstrVal));
            name.Get()->vt = VT_BSTR;
            GiveText(pResult, {name.Value().bstrVal, ::SysStringLen(name.Value().bstrVal)});
            break;
        }
        case Part::Size: {
            CY size = {};
            Check(font->get_Size(&size));
            GiveReal(pResult, vt, size.int64 / kPoint);
            break;
        }
        default: {
            WINBOOL bOn = FALSE;
            Check((font.Get()->*kGetters[nFlag])(&bOn));
            Give(pResult, vt, bOn);
            break;
        }
    }
}

HFONT FontProperty::Handle() {
    HFONT hFont = nullptr;
    if (FAILED(Get()->get_hFont(&hFont)) || hFont == nullptr) {
        hFont = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    }
    return hFont;
}

}  // namespace ocx
