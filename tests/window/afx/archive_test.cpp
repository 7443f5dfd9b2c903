// Archives: what stands in them, objects with their references, and files that are damaged.
#include "support/temp_file.h"

#include <afxtempl.h>
#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace {

int s_nAlive = 0;

/// A part of a drawing, which may lead to others.
class Part : public CObject {
    DECLARE_SERIAL(Part)

public:
    Part() { ++s_nAlive; }
    ~Part() override { --s_nAlive; }

    CString m_strName;
    CPoint m_point;
    Part* m_pNext = nullptr;  ///< owned by the drawing
    UINT m_nSchema = 0;       ///< that it was loaded with

    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar << m_strName << m_point << m_pNext;
        } else {
            m_nSchema = ar.GetObjectSchema();
            ar >> m_strName >> m_point >> m_pNext;
        }
    }
};
IMPLEMENT_SERIAL(Part, CObject, VERSIONABLE_SCHEMA | 3)

class StrictPart : public Part {
    DECLARE_SERIAL(StrictPart)
};
IMPLEMENT_SERIAL(StrictPart, Part, 1)

/// What a document has: it owns the parts in its list.
struct Drawing {
    CTypedPtrList<CObList, Part*> parts;
    CStringArray texts;
    CArray<int, int> numbers;
    CMapStringToString words;
    CMapWordToOb places;

    ~Drawing() { Empty(); }
    void Empty() {
        while (!parts.IsEmpty()) {
            delete parts.RemoveHead();
        }
        places.RemoveAll();
    }
    void Serialize(CArchive& ar) {
        parts.Serialize(ar);
        texts.Serialize(ar);
        numbers.Serialize(ar);
        words.Serialize(ar);
        places.Serialize(ar);
    }
    void Fill() {
        for (const char* psz : {"first", "second", "third"}) {
            auto* pPart = new Part;
            pPart->m_strName = psz;
            parts.AddTail(pPart);
        }
        parts.GetHead()->m_pNext = parts.GetTail();
        parts.GetTail()->m_pNext = parts.GetHead();  // round and round
        parts.GetTail()->m_point = CPoint(-1, 70000);
        texts.Add("text");
        numbers.SetAtGrow(4, -9);
        words["key"] = "value";
        places[7] = parts.GetTail();
    }
};

std::string Stored(const std::function<void(CArchive&)>& store) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    store(ar);
    ar.Close();
    std::string strBytes(static_cast<size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(strBytes.data(), static_cast<UINT>(strBytes.size()));
    return strBytes;
}

/// The cause of what was thrown; none, or -1 for another exception.
int Load(std::string strBytes, const std::function<void(CArchive&)>& load) {
    CMemFile file;
    file.Attach(reinterpret_cast<BYTE*>(strBytes.data()), static_cast<UINT>(strBytes.size()));
    CArchive ar(&file, CArchive::load, 1);
    try {
        load(ar);
    } catch (CArchiveException* e) {
        const int nCause = e->m_cause;
        e->Delete();
        return nCause;
    } catch (CException* e) {
        e->Delete();
        return -1;
    }
    return CArchiveException::none;
}

std::string Hex(const std::string& strBytes) {
    std::string strHex;
    for (const char ch : strBytes) {
        char sz[3];
        std::snprintf(sz, sizeof(sz), "%02X", static_cast<UINT>(static_cast<BYTE>(ch)));
        strHex += sz;
    }
    return strHex;
}

TEST(Archive, HasThePublishedBytes) {
    const struct {
        std::function<void(CArchive&)> store;
        const char* pszHex;  ///< how it begins
    } cases[] = {
        {[](CArchive& ar) { ar << BYTE(1) << WORD(2) << 3L << DWORD(4) << true << 'a'; },
         "0102000300000004000000"
         "0161"},
        {[](CArchive& ar) { ar << -2LL << 1.0 << 1.0f << short(-1) << L'b'; },
         "FEFFFFFFFFFFFFFF000000000000F03F0000803FFFFF6200"},
        {[](CArchive& ar) { ar << CString("ab") << CString(); }, "02616200"},
        {[](CArchive& ar) { ar << CString('x', 255); }, "FFFF0078"},
        {[](CArchive& ar) { ar << CString('x', 0xFFFE); }, "FFFFFFFEFF000078"},
        {[](CArchive& ar) { ar.WriteCount(0xFFFE), ar.WriteCount(0x10000); }, "FEFFFFFF00000100"},
        {[](CArchive& ar) { ar.WriteCount(0xFFFFFFFF); }, "FFFFFFFFFFFFFFFFFFFF00000000"},
        {[](CArchive& ar) {
             Part parts[2];
             parts[0].m_pNext = &parts[1];
             parts[1].m_pNext = &parts[0];
             ar << &parts[0] << &parts[1] << static_cast<CObject*>(nullptr);
         },
         // The class with schema and name, its first object, and inside it the second one.
         "FFFF0300040050617274"
         "000000000000000000"
         "0180"
         "000000000000000000"
         "0200"
         "0300"
         "0000"},
    };
    for (const auto& [store, pszHex] : cases) {
        const std::string strHex = Hex(Stored(store));
        EXPECT_EQ(strHex.substr(0, std::strlen(pszHex)), pszHex);
    }
}

TEST(Archive, GivesBackWhatWasStored_WithItsReferences) {
    const std::string strLong(100000, 'q');
    CString strText;
    CString strWide;
    Part atHome;
    CObject* pMapped = nullptr;
    const std::string strBytes = Stored([&](CArchive& ar) {
        Drawing drawing;
        drawing.Fill();
        ar.MapObject(&atHome);
        drawing.Serialize(ar);
        ar << CString(strLong.c_str()) << &atHome;
        ar.Write(
            "\xFF\xFE\xFF\x02"
            "a\0b\0",
            8);  // as a Unicode program writes "ab"
    });
    Drawing drawing;
    EXPECT_EQ(Load(strBytes,
                   [&](CArchive& ar) {
                       ar.MapObject(&atHome);
                       drawing.Serialize(ar);
                       ar >> strText >> pMapped >> strWide;
                   }),
              CArchiveException::none);
    ASSERT_EQ(drawing.parts.GetCount(), 3);
    EXPECT_EQ(drawing.parts.GetHead()->m_pNext, drawing.parts.GetTail());
    EXPECT_EQ(drawing.parts.GetTail()->m_pNext, drawing.parts.GetHead());
    EXPECT_EQ(drawing.parts.GetTail()->m_strName, "third");
    EXPECT_EQ(drawing.parts.GetTail()->m_point, CPoint(-1, 70000));
    EXPECT_EQ(drawing.places[7], drawing.parts.GetTail());
    EXPECT_EQ(drawing.texts[0], "text");
    EXPECT_EQ(drawing.numbers[4], -9);
    EXPECT_EQ(drawing.words["key"], "value");
    EXPECT_EQ(strText, strLong.c_str());
    EXPECT_EQ(pMapped, &atHome);
    EXPECT_EQ(strWide, "ab");
}

// A class that is versionable is told the number; others are refused, and what is no such class.
TEST(Archive, KnowsOtherVersionsAndClasses) {
    const auto object = [](WORD wSchema, const char* pszClass) {
        return Stored([&](CArchive& ar) {
            ar << WORD(0xFFFF) << wSchema << static_cast<WORD>(std::strlen(pszClass));
            ar.WriteString(pszClass);
            ar << CString() << CPoint() << WORD(0);
        });
    };
    const struct {
        std::string strBytes;
        int nCause;
    } cases[] = {{object(2, "Part"), CArchiveException::none},
                 {object(1, "StrictPart"), CArchiveException::none},
                 {object(2, "StrictPart"), CArchiveException::badSchema},
                 {object(0, "CObArray"), CArchiveException::badClass},
                 {object(0xFFFF, "CWnd"), CArchiveException::badClass},
                 {object(0, "Nobody"), CArchiveException::badClass},
                 {std::string("\x05\x00", 2), CArchiveException::badIndex},
                 {std::string("\x05\x80", 2), CArchiveException::badIndex},
                 {std::string("\x05", 1), CArchiveException::endOfFile}};
    for (const auto& [strBytes, nCause] : cases) {
        Part* pPart = nullptr;
        EXPECT_EQ(Load(strBytes, [&](CArchive& ar) { ar >> pPart; }), nCause) << Hex(strBytes);
        EXPECT_EQ(pPart != nullptr, nCause == CArchiveException::none);
        if (pPart != nullptr && !pPart->IsKindOf(RUNTIME_CLASS(StrictPart))) {
            EXPECT_EQ(pPart->m_nSchema, 2u);
        }
        delete pPart;
    }
    EXPECT_EQ(Load("x", [](CArchive& ar) { ar << 1; }), CArchiveException::readOnly);
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    CWnd wnd;
    EXPECT_THROW(storing << &wnd, CNotSupportedException*);
    int n = 0;
    EXPECT_THROW(storing >> n, CArchiveException*);
}

// Whatever a file says, loading ends, in an exception or not, and each object that was made is
// there to be deleted, or gone.
TEST(Archive, DamagedFilesEndInAnException) {
    const std::string strWhole = Stored([](CArchive& ar) {
        Drawing drawing;
        drawing.Fill();
        drawing.Serialize(ar);
    });
    int nRefused = 0;
    const auto tryIt = [&](const std::string& strBytes) {
        {
            Drawing drawing;
            nRefused += Load(strBytes, [&](CArchive& ar) { drawing.Serialize(ar); }) != 0;
            // Objects may have come by way of another one's pointer alone.
            CMapPtrToPtr owned;
            for (POSITION pos = drawing.parts.GetHeadPosition(); pos != nullptr;) {
                for (Part* p = drawing.parts.GetNext(pos); p != nullptr && !owned.PLookup(p);
                     p = p->m_pNext) {
                    owned[p] = p;
                }
            }
            drawing.parts.RemoveAll();
            for (auto* p = drawing.places.PGetFirstAssoc(); p != nullptr;
                 p = drawing.places.PGetNextAssoc(p)) {
                owned[p->value] = p->value;
            }
            for (auto* p = owned.PGetFirstAssoc(); p != nullptr; p = owned.PGetNextAssoc(p)) {
                delete static_cast<CObject*>(p->value);
            }
        }
        return s_nAlive;
    };
    for (size_t n = 0; n < strWhole.size(); ++n) {
        ASSERT_EQ(tryIt(strWhole.substr(0, n)), 0) << "cut at " << n;
        ASSERT_EQ(nRefused, static_cast<int>(n) + 1) << "cut at " << n;
    }
    for (size_t n = 0; n < strWhole.size(); ++n) {
        for (const int nBit : {0x01, 0x02, 0x7F, 0x80, 0xFF}) {
            std::string strBytes = strWhole;
            strBytes[n] = static_cast<char>(strBytes[n] ^ nBit);
            ASSERT_EQ(tryIt(strBytes), 0) << "byte " << n << " by " << nBit;
        }
    }
}

TEST(Archive, TakesMemoryAndStackForWhatIsThereAlone) {
    const std::string strCount("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x0F", 14);
    CStringArray strings;
    CDWordArray numbers;
    CObList objects;
    CMapStringToString words;
    for (CObject* pObject : {static_cast<CObject*>(&strings), static_cast<CObject*>(&numbers),
                             static_cast<CObject*>(&objects), static_cast<CObject*>(&words)}) {
        const std::string strNulls(2, '\0');  // of objects
        EXPECT_EQ(Load(strCount + strNulls, [&](CArchive& ar) { pObject->Serialize(ar); }),
                  CArchiveException::endOfFile);
    }
    // A part within a part within a part...
    std::string strDeep("\xFF\xFF\x03\x00\x04\x00Part", 10);
    for (int n = 0; n < 300000; ++n) {
        strDeep += std::string(9, '\0') + std::string("\x01\x80", 2);
    }
    EXPECT_EQ(Load(strDeep, [](CArchive& ar) { ar.ReadObject(nullptr); }),
              CArchiveException::badIndex);
    EXPECT_EQ(s_nAlive, 0);
}

TEST(Archive, ReadsLinesAndLeavesTheRestOfTheFile) {
    const std::string strLong(300, 'l');
    const TempFile temp("one\r\ntwo\n\r\n" + strLong + "\r\nend|rest");
    CFile file(temp.Path(), CFile::modeRead);
    {
        CArchive ar(&file, CArchive::load, 128);
        std::string strLines;
        CString strLine;
        for (int n = 0; n < 4; ++n) {
            EXPECT_TRUE(ar.ReadString(strLine));
            strLines += std::string(strLine) + "/";
        }
        EXPECT_EQ(strLines, "one/two//" + strLong + "/");
        char szEnd[5];
        EXPECT_STREQ(ar.ReadString(szEnd, 5), "end|");
    }
    char szRest[5] = {};
    EXPECT_EQ(file.Read(szRest, 4), 4u);
    EXPECT_STREQ(szRest, "rest");
}

}  // namespace
