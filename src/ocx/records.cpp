#include "ocx/records.h"

#include <algorithm>
#include <cstring>
#include <olectl.h>

namespace ocx {

namespace {

constexpr DWORD kVersion = 0x514F0001;  // of the format; the upper half tells it from other data
enum class Kind : WORD {
    None,
    Short,
    Long,
    Single,
    Double,
    Currency,
    Boolean,
    Text,
    Font,
    Picture
};

struct Head {
    DWORD dwVersion;
    DWORD dwLength;  // of what follows
};

class Writer {
public:
    std::vector<BYTE> m_bytes;

    void Bytes(const void* p, size_t nCount) {
        const auto* pBytes = static_cast<const BYTE*>(p);
        m_bytes.insert(m_bytes.end(), pBytes, pBytes + nCount);
    }
    template <class T>
    void Plain(T value) {
        Bytes(&value, sizeof value);
    }
    void Block(const void* p, size_t nCount) {
        Plain(static_cast<DWORD>(nCount));
        Bytes(p, nCount);
    }
};

class Reader {
public:
    explicit Reader(std::span<const BYTE> bytes) : m_bytes(bytes) {}

    bool IsAtEnd() const { return m_bytes.empty(); }
    std::span<const BYTE> Bytes(size_t nCount) {
        if (nCount > m_bytes.size()) {
            throw Refusal{E_FAIL};
        }
        const auto bytes = m_bytes.first(nCount);
        m_bytes = m_bytes.subspan(nCount);
        return bytes;
    }
    template <class T>
    T Plain() {
        T value;
        std::memcpy(&value, Bytes(sizeof value).data(), sizeof value);
        return value;
    }
    std::span<const BYTE> Block() { return Bytes(Plain<DWORD>()); }

private:
    std::span<const BYTE> m_bytes;
};

Ref<IStream> MemoryStream() {
    Ref<IStream> stream;
    Check(::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()));
    return stream;
}

/// What the object itself writes.
void WriteObject(Writer& writer, IUnknown* pObject) {
    const auto persist = Ref<IPersistStream>::Of(pObject);
    const Ref<IStream> stream = MemoryStream();
    if (!persist || FAILED(persist->Save(stream.Get(), FALSE))) {
        throw Refusal{E_FAIL};
    }
    HGLOBAL hMemory = nullptr;
    STATSTG stat = {};
    Check(::GetHGlobalFromStream(stream.Get(), &hMemory));
    Check(stream->Stat(&stat, STATFLAG_NONAME));
    writer.Block(::GlobalLock(hMemory), stat.cbSize.LowPart);
    ::GlobalUnlock(hMemory);
}

Ref<IUnknown> ReadObject(Kind kind, std::span<const BYTE> bytes) {
    const Ref<IStream> stream = MemoryStream();
    Check(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    Check(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    Ref<IUnknown> object;
    if (kind == Kind::Font) {
        Check(
            ::OleCreateFontIndirect(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.Out())));
    } else {
        Check(::OleCreatePictureIndirect(nullptr, IID_IUnknown, TRUE,
                                         reinterpret_cast<void**>(object.Out())));
    }
    const auto persist = Ref<IPersistStream>::Of(object.Get());
    if (!persist || FAILED(persist->Load(stream.Get()))) {
        throw Refusal{E_FAIL};
    }
    return object;
}

Kind KindOf(const VARIANT& value) {
    switch (value.vt) {
        case VT_I2:
            return Kind::Short;
        case VT_I4:
            return Kind::Long;
        case VT_R4:
            return Kind::Single;
        case VT_R8:
            return Kind::Double;
        case VT_CY:
            return Kind::Currency;
        case VT_BOOL:
            return Kind::Boolean;
        case VT_BSTR:
            return Kind::Text;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return Ref<IFont>::Of(value.punkVal)      ? Kind::Font
                   : Ref<IPicture>::Of(value.punkVal) ? Kind::Picture
                                                      : Kind::None;
        default:
            return Kind::None;
    }
}

void WriteValue(Writer& writer, Kind kind, const VARIANT& value) {
    switch (kind) {
        case Kind::Short:
        case Kind::Boolean:
            writer.Plain(value.iVal);
            break;
        case Kind::Long:
        case Kind::Single:
            writer.Plain(value.lVal);
            break;
        case Kind::Double:
        case Kind::Currency:
            writer.Plain(value.cyVal.int64);
            break;
        case Kind::Text:
            writer.Block(value.bstrVal, ::SysStringByteLen(value.bstrVal));
            break;
        default:
            WriteObject(writer, value.punkVal);
            break;
    }
}

void ReadValue(Reader& reader, Kind kind, VARIANT& value) {
    constexpr VARTYPE kTypes[] = {VT_EMPTY, VT_I2,   VT_I4,   VT_R4,      VT_R8,
                                  VT_CY,    VT_BOOL, VT_BSTR, VT_UNKNOWN, VT_UNKNOWN};
    switch (kind) {
        case Kind::Short:
        case Kind::Boolean:
            value.iVal = reader.Plain<SHORT>();
            break;
        case Kind::Long:
        case Kind::Single:
            value.lVal = reader.Plain<LONG>();
            break;
        case Kind::Double:
        case Kind::Currency:
            value.cyVal.int64 = reader.Plain<LONGLONG>();
            break;
        case Kind::Text: {
            const auto bytes = reader.Block();
            value.bstrVal = ::SysAllocStringLen(nullptr, static_cast<UINT>(bytes.size() / 2));
            if (value.bstrVal == nullptr) {
                throw std::bad_alloc();
            }
            std::memcpy(value.bstrVal, bytes.data(), bytes.size() / 2 * 2);
            break;
        }
        case Kind::Font:
        case Kind::Picture:
            value.punkVal = ReadObject(kind, reader.Block()).Detach();
            break;
        default:
            throw Refusal{E_FAIL};
    }
    value.vt = kTypes[static_cast<WORD>(kind)];
}

}  // namespace

std::vector<BYTE> ToBytes(std::span<const Record> records) {
    Writer writer;
    writer.Plain(Head{kVersion, 0});
    for (const Record& record : records) {
        const Kind kind = KindOf(record.value.Value());
        if (kind == Kind::None) {
            continue;
        }
        writer.Plain(record.id);
        writer.Plain(record.nIndex);
        writer.Plain(kind);
        WriteValue(writer, kind, record.value.Value());
    }
    const Head head = {kVersion, static_cast<DWORD>(writer.m_bytes.size() - sizeof(Head))};
    std::memcpy(writer.m_bytes.data(), &head, sizeof head);
    return std::move(writer.m_bytes);
}

std::vector<Record> FromBytes(std::span<const BYTE> bytes) {
    Reader reader(bytes);
    const Head head = reader.Plain<Head>();
    if (head.dwVersion != kVersion || head.dwLength != bytes.size() - sizeof(Head)) {
        throw Refusal{E_FAIL};
    }
    std::vector<Record> records;
    while (!reader.IsAtEnd()) {
        Record record = {};
        record.id = reader.Plain<DISPID>();
        record.nIndex = reader.Plain<LONG>();
        const auto kind = reader.Plain<Kind>();
        ReadValue(reader, kind, *record.value.Get());
        records.push_back(std::move(record));
    }
    return records;
}

void WriteState(IStream& stream, std::span<const Record> records) {
    const std::vector<BYTE> bytes = ToBytes(records);
    ULONG nWritten = 0;
    Check(stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &nWritten));
    if (nWritten != bytes.size()) {
        throw Refusal{STG_E_MEDIUMFULL};
    }
}

std::vector<Record> ReadState(IStream& stream) {
    constexpr size_t kPiece = 64 * 1024;  // so that a length that lies costs no memory
    std::vector<BYTE> bytes;
    const auto read = [&](size_t nCount) {
        const size_t nOld = bytes.size();
        bytes.resize(nOld + nCount);
        ULONG nRead = 0;
        if (FAILED(stream.Read(bytes.data() + nOld, static_cast<ULONG>(nCount), &nRead)) ||
            nRead != nCount) {
            throw Refusal{E_FAIL};
        }
    };
    read(sizeof(Head));
    Head head;
    std::memcpy(&head, bytes.data(), sizeof head);
    if (head.dwVersion != kVersion) {
        throw Refusal{E_FAIL};
    }
    for (size_t nLeft = head.dwLength; nLeft > 0;) {
        const size_t nPiece = std::min(nLeft, kPiece);
        read(nPiece);
        nLeft -= nPiece;
    }
    return FromBytes(bytes);
}

}  // namespace ocx
