// A font that a container sees as an object (Font) and in parts (FontName, FontBold, ...): one font
// behind both, and the control is told of every change, whoever makes it.

#pragma once

#include "ocx/arguments.h"

#include <functional>
#include <ocidl.h>
#include <olectl.h>

namespace ocx {

class FontProperty {
public:
    enum class Part { Name, Size, Bold, Italic, Underline, Strikethrough };

    /// first gives the font to begin with, of which a copy is taken, or null for a standard one;
    /// it is asked on first use. changed is called after each change.
    FontProperty(std::function<Ref<IFont>()> first, std::function<void()> changed);
    ~FontProperty();
    FontProperty(const FontProperty&) = delete;
    FontProperty& operator=(const FontProperty&) = delete;

    /// Set by anybody, or still what it began with?
    bool IsSet() const { return m_bSet; }
    /// Back to what first gives.
    void Reset();

    /// Throws without memory for one.
    IFont* Get();
    /// The object itself, shared with others (bShare), or a copy of it. Null is refused.
    void Put(IUnknown* pFont, bool bShare);
    /// Answers a call for a part, or one for the object.
    void CallPart(Part part, const Arguments& arguments, VARTYPE vt, VARIANT* pResult);
    void CallFont(const Arguments& arguments, VARIANT* pResult);

    /// Of the font object, which owns it. Never null.
    HFONT Handle();

private:
    class Sink;

    void Watch(Ref<IFont> font);
    void Unwatch();

    std::function<Ref<IFont>()> m_first;
    std::function<void()> m_changed;
    Ref<IFont> m_font;
    Ref<Sink> m_sink;
    DWORD m_dwCookie = 0;
    bool m_bSet = false;
};

}  // namespace ocx
