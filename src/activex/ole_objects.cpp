#include "activex/ole_objects.h"

#include "activex/member_calls.h"

CY COleFont::GetSize() {
    return qv::GetMember<CY>(*this, 2, VT_CY);
}

BOOL COleFont::GetBold() {
    return qv::GetMember<BOOL>(*this, 3, VT_BOOL);
}

BOOL COleFont::GetItalic() {
    return qv::GetMember<BOOL>(*this, 4, VT_BOOL);
}

BOOL COleFont::GetUnderline() {
    return qv::GetMember<BOOL>(*this, 5, VT_BOOL);
}

BOOL COleFont::GetStrikethrough() {
    return qv::GetMember<BOOL>(*this, 6, VT_BOOL);
}

short COleFont::GetWeight() {
    return qv::GetMember<short>(*this, 7, VT_I2);
}

short COleFont::GetCharset() {
    return qv::GetMember<short>(*this, 8, VT_I2);
}

long CPicture::GetHandle() {
    return qv::GetMember<long>(*this, 0, VT_I4);
}

long CPicture::GetHPal() {
    return qv::GetMember<long>(*this, 2, VT_I4);
}

short CPicture::GetType() {
    return qv::GetMember<short>(*this, 3, VT_I2);
}

long CPicture::GetWidth() {
    return qv::GetMember<long>(*this, 4, VT_I4);
}

long CPicture::GetHeight() {
    return qv::GetMember<long>(*this, 5, VT_I4);
}
