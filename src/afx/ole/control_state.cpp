#include "afx/ole/control_state.h"

#include <afxwin.h>

#include <cstring>
#include <ocidl.h>
#include <olectl.h>
#include <vector>

namespace {

/// A file of the program's as a stream to read, from where the file stands.
class FileStream final : public AfxComObject<IStream> {
public:
    explicit FileStream(CFile& file) : m_pFile(&file), m_nStart(file.GetPosition()) {}
    void ForgetFile() { m_pFile = nullptr; }

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override {
        if (ppv == nullptr) {
            return E_POINTER;
        }
        if (riid != IID_IUnknown && riid != IID_ISequentialStream && riid != IID_IStream) {
            *ppv = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        *ppv = static_cast<IStream*>(this);
        return S_OK;
    }
    STDMETHODIMP Read(void* pv, ULONG cb, ULONG* pcbRead) override {
        ULONG nRead = 0;
        const HRESULT hr = WithFile([&](CFile& file) { nRead = file.Read(pv, cb); });
        if (pcbRead != nullptr) {
            *pcbRead = nRead;
        }
        return FAILED(hr) || nRead == cb ? hr : S_FALSE;
    }
    STDMETHODIMP Seek(LARGE_INTEGER move, DWORD dwOrigin, ULARGE_INTEGER* pNew) override {
        bool bBefore = false;
        const HRESULT hr = WithFile([&](CFile& file) {
            const auto nStart = static_cast<LONGLONG>(m_nStart);
            const LONGLONG nBase = dwOrigin == STREAM_SEEK_SET ? nStart
                                   : dwOrigin == STREAM_SEEK_CUR
                                       ? static_cast<LONGLONG>(file.GetPosition())
                                       : static_cast<LONGLONG>(file.GetLength());
            const LONGLONG nTo = nBase + move.QuadPart;
            if (nTo < nStart) {
                bBefore = true;
                return;
            }
            const ULONGLONG nAt = file.Seek(nTo, CFile::begin);
            if (pNew != nullptr) {
                pNew->QuadPart = nAt - m_nStart;
            }
        });
        return bBefore ? STG_E_INVALIDFUNCTION : hr;
    }
    STDMETHODIMP Stat(STATSTG* pStat, DWORD) override {
        if (pStat == nullptr) {
            return STG_E_INVALIDPOINTER;
        }
        *pStat = {};
        pStat->type = STGTY_STREAM;
        return WithFile([&](CFile& file) { pStat->cbSize.QuadPart = file.GetLength() - m_nStart; });
    }
    STDMETHODIMP Write(const void*, ULONG, ULONG*) override { return STG_E_ACCESSDENIED; }
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return STG_E_ACCESSDENIED; }
    STDMETHODIMP CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return S_OK; }
    STDMETHODIMP Revert() override { return S_OK; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IStream**) override { return E_NOTIMPL; }

private:
    template <class Act>
    HRESULT WithFile(Act act) {
        if (m_pFile == nullptr) {
            return STG_E_REVERTED;
        }
        try {
            act(*m_pFile);
            return S_OK;
        } catch (CException* e) {
            e->Delete();
        } catch (...) {
        }
        return STG_E_READFAULT;
    }

    CFile* m_pFile;
    const ULONGLONG m_nStart;
};

HRESULT LoadFromStream(IUnknown* pObject, CFile& file) {
    const AfxComPtr<IUnknown> pSelf(pObject);
    AfxComPtr<FileStream> pStream;
    *pStream.Put() = new FileStream(file);
    HRESULT hr = E_NOINTERFACE;
    if (const auto pInit = pSelf.As<IPersistStreamInit>()) {
        hr = pInit->Load(pStream.Get());
    } else if (const auto pPersist = pSelf.As<IPersistStream>()) {
        hr = pPersist->Load(pStream.Get());
    }
    pStream->ForgetFile();
    return hr;
}

/// The rest of a file in global memory that a storage can work on.
HRESULT OpenStorage(CFile& file, AfxComPtr<IStorage>& pStorage) {
    const auto nBytes = static_cast<UINT>(file.GetLength() - file.GetPosition());
    if (nBytes == 0) {
        return STG_E_READFAULT;
    }
    std::vector<BYTE> bytes(nBytes);
    if (file.Read(bytes.data(), nBytes) != nBytes) {
        return STG_E_READFAULT;
    }
    const HGLOBAL hBytes = ::GlobalAlloc(GMEM_MOVEABLE, nBytes);
    void* const pvBytes = hBytes != nullptr ? ::GlobalLock(hBytes) : nullptr;
    if (pvBytes == nullptr) {
        ::GlobalFree(hBytes);
        return E_OUTOFMEMORY;
    }
    std::memcpy(pvBytes, bytes.data(), nBytes);
    ::GlobalUnlock(hBytes);
    AfxComPtr<ILockBytes> pBytes;
    const HRESULT hr = ::CreateILockBytesOnHGlobal(hBytes, TRUE, pBytes.Put());
    if (FAILED(hr)) {
        ::GlobalFree(hBytes);
        return hr;
    }
    return ::StgOpenStorageOnILockBytes(
        pBytes.Get(), nullptr, STGM_READWRITE | STGM_SHARE_EXCLUSIVE, nullptr, 0, pStorage.Put());
}

HRESULT LoadFromStorage(IUnknown* pObject, CFile& file, AfxComPtr<IStorage>& pStorage) {
    const auto pPersist = AfxComPtr<IUnknown>(pObject).As<IPersistStorage>();
    if (!pPersist) {
        return E_NOINTERFACE;
    }
    const HRESULT hr = OpenStorage(file, pStorage);
    return FAILED(hr) ? hr : pPersist->Load(pStorage.Get());
}

HRESULT InitNewStorage(IPersistStorage& persist, AfxComPtr<IStorage>& pStorage) {
    AfxComPtr<ILockBytes> pBytes;
    HRESULT hr = ::CreateILockBytesOnHGlobal(nullptr, TRUE, pBytes.Put());
    if (SUCCEEDED(hr)) {
        hr = ::StgCreateDocfileOnILockBytes(
            pBytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, pStorage.Put());
    }
    return FAILED(hr) ? hr : persist.InitNew(pStorage.Get());
}

HRESULT InitNew(IUnknown* pObject, AfxComPtr<IStorage>& pStorage) {
    const AfxComPtr<IUnknown> pSelf(pObject);
    HRESULT hr = S_OK;
    if (const auto pInit = pSelf.As<IPersistStreamInit>()) {
        hr = pInit->InitNew();
    } else if (const auto pPersist = pSelf.As<IPersistStorage>()) {
        hr = InitNewStorage(*pPersist.Get(), pStorage);
    } else if (const auto pBag = pSelf.As<IPersistPropertyBag>()) {
        hr = pBag->InitNew();
    }
    return hr == E_NOTIMPL ? S_OK : hr;
}

/// The first interface of the class that it calls, its events, by the name of default.
HRESULT DefaultSourceOf(ITypeInfo& info, IID* piid) {
    TYPEATTR* pAttributes = nullptr;
    HRESULT hr = info.GetTypeAttr(&pAttributes);
    if (FAILED(hr)) {
        return hr;
    }
    const UINT nTypes = pAttributes->cImplTypes;
    info.ReleaseTypeAttr(pAttributes);
    constexpr int kWanted = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    for (UINT i = 0; i < nTypes; ++i) {
        int nFlags = 0;
        HREFTYPE hType = 0;
        AfxComPtr<ITypeInfo> pSource;
        if (FAILED(info.GetImplTypeFlags(i, &nFlags)) || (nFlags & kWanted) != kWanted ||
            FAILED(info.GetRefTypeOfImplType(i, &hType)) ||
            FAILED(info.GetRefTypeInfo(hType, pSource.Put())) ||
            FAILED(pSource->GetTypeAttr(&pAttributes))) {
            continue;
        }
        *piid = pAttributes->guid;
        pSource->ReleaseTypeAttr(pAttributes);
        return S_OK;
    }
    return E_NOINTERFACE;
}

HRESULT FirstConnectionPoint(IUnknown* pObject, IID* piid) {
    const auto pPoints = AfxComPtr<IUnknown>(pObject).As<IConnectionPointContainer>();
    AfxComPtr<IEnumConnectionPoints> pEnum;
    if (!pPoints || FAILED(pPoints->EnumConnectionPoints(pEnum.Put()))) {
        return E_NOINTERFACE;
    }
    for (;;) {
        AfxComPtr<IConnectionPoint> pPoint;
        if (pEnum->Next(1, pPoint.Put(), nullptr) != S_OK) {
            return E_NOINTERFACE;
        }
        if (SUCCEEDED(pPoint->GetConnectionInterface(piid)) && *piid != IID_IPropertyNotifySink) {
            return S_OK;
        }
    }
}

}  // namespace

HRESULT AfxInitControlState(IUnknown* pObject, CFile* pPersist, BOOL bStorage,
                            AfxComPtr<IStorage>& pStorage) {
    if (pPersist == nullptr) {
        return InitNew(pObject, pStorage);
    }
    return bStorage ? LoadFromStorage(pObject, *pPersist, pStorage)
                    : LoadFromStream(pObject, *pPersist);
}

HRESULT AfxCreateControlObject(REFCLSID clsid, BSTR bstrLicKey, AfxComPtr<IOleObject>& pObject) {
    constexpr DWORD kContext = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;
    AfxComPtr<IClassFactory> pFactory;
    HRESULT hr =
        ::CoGetClassObject(clsid, kContext, nullptr, IID_IClassFactory, pFactory.PutVoid());
    if (FAILED(hr)) {
        return hr;
    }
    const auto pLicensed =
        bstrLicKey != nullptr ? pFactory.As<IClassFactory2>() : AfxComPtr<IClassFactory2>();
    LICINFO info = {};
    info.cbLicInfo = sizeof info;
    const bool bMachineHasOne =
        pLicensed && SUCCEEDED(pLicensed->GetLicInfo(&info)) && info.fLicVerified;
    if (pLicensed && !bMachineHasOne) {
        return pLicensed->CreateInstanceLic(nullptr, nullptr, IID_IOleObject, bstrLicKey,
                                            pObject.PutVoid());
    }
    return pFactory->CreateInstance(nullptr, IID_IOleObject, pObject.PutVoid());
}

HRESULT AfxFindEventInterface(IUnknown* pObject, IID* piid) {
    const AfxComPtr<IUnknown> pSelf(pObject);
    if (const auto pInfo2 = pSelf.As<IProvideClassInfo2>()) {
        if (SUCCEEDED(pInfo2->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, piid)) &&
            *piid != IID_NULL) {
            return S_OK;
        }
    }
    if (const auto pInfo = pSelf.As<IProvideClassInfo>()) {
        AfxComPtr<ITypeInfo> pClass;
        if (SUCCEEDED(pInfo->GetClassInfo(pClass.Put())) && pClass &&
            SUCCEEDED(DefaultSourceOf(*pClass.Get(), piid))) {
            return S_OK;
        }
    }
    return FirstConnectionPoint(pObject, piid);
}
