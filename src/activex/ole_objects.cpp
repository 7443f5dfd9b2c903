#include "activex/ole_objects.h"

namespace {

template <class Result>
Result Get(const COleDispatchDriver& object, DISPID id, VARTYPE vt) {
    Result result{};
    object.GetProperty(id, vt, &result);
    return result;
}

}  // namespace

CY COleFont::GetSize() {
    return Get<CY>(*this, 2, VT_CY);
}

BOOL COleFont::GetBold() {
    return Get<BOOL>(*this, 3, VT_BOOL);
}

BOOL COleFont::GetItalic() {
    return Get<BOOL>(*this, 4, VT_BOOL);
}

BOOL COleFont::GetUnderline() {
    return Get<BOOL>(*this, 5, VT_BOOL);
}

BOOL COleFont::GetStrikethrough() {
    return Get<BOOL>(*this, 6, VT_BOOL);
}

short COleFont::GetWeight() {
    return Get<short>(*this, 7, VT_I2);
}

short COleFont::GetCharset() {
    return Get<short>(*this, 8, VT_I2);
}

long CPicture::GetHandle() {
    return Get<long>(*this, 0, VT_I4);
}

long CPicture::GetHPal() {
    return Get<long>(*this, 2, VT_I4);
}

short CPicture::GetType() {
    return Get<short>(*this, 3, VT_I2);
}

long CPicture::GetWidth() {
    return Get<long>(*this, 4, VT_I4);
}

long CPicture::GetHeight() {
    return Get<long>(*this, 5, VT_I4);
}
