// How a CImage reads and writes files: by the system's imaging component.
#include "afx/drawing/image.h"

#include "afx/ole/com_pointer.h"
#include "afx/values/text_convert.h"

#include <afxwin.h>

#include <vector>
#include <wincodec.h>

namespace {

template <class Interface>
using Held = AfxComPtr<Interface>;

HRESULT MakeFactory(Held<IWICImagingFactory>& factory) {
    return ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                              __uuidof(IWICImagingFactory), factory.PutVoid());
}

/// The formats under the numbers that GDI+ has for them, which differ in one part, and under their
/// files' extensions.
struct Format {
    const GUID& container;
    unsigned long nGdiPlus;
    const char* pszExtensions;
};
const Format kFormats[] = {{GUID_ContainerFormatBmp, 0xb96b3cab, ".bmp.dib."},
                           {GUID_ContainerFormatJpeg, 0xb96b3cae, ".jpg.jpeg.jpe.jfif."},
                           {GUID_ContainerFormatPng, 0xb96b3caf, ".png."},
                           {GUID_ContainerFormatGif, 0xb96b3cb0, ".gif."},
                           {GUID_ContainerFormatTiff, 0xb96b3cb1, ".tif.tiff."}};

const GUID* FindFormat(REFGUID guid, LPCTSTR pszFileName) {
    constexpr GUID kGdiPlus = {0, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
    for (const Format& format : kFormats) {
        GUID guidGdiPlus = kGdiPlus;
        guidGdiPlus.Data1 = format.nGdiPlus;
        if (guid == format.container || guid == guidGdiPlus) {
            return &format.container;
        }
    }
    if (guid != GUID_NULL || pszFileName == nullptr) {
        return nullptr;
    }
    CString strExtension(pszFileName);
    strExtension = strExtension.Mid(strExtension.ReverseFind('.')) + ".";
    strExtension.MakeLower();
    for (const Format& format : kFormats) {
        if (strExtension[0] == '.' && std::strstr(format.pszExtensions, strExtension) != nullptr) {
            return &format.container;
        }
    }
    return nullptr;
}

bool HasAlpha(IWICImagingFactory* pFactory, const GUID& pixels) {
    Held<IWICComponentInfo> info;
    Held<IWICPixelFormatInfo2> format;
    BOOL bTransparent = FALSE;
    return SUCCEEDED(pFactory->CreateComponentInfo(pixels, info.Put())) &&
           SUCCEEDED(info->QueryInterface(__uuidof(IWICPixelFormatInfo2), format.PutVoid())) &&
           SUCCEEDED(format->SupportsTransparency(&bTransparent)) && bTransparent;
}

/// The picture in other pixels.
HRESULT Convert(IWICImagingFactory* pFactory, IWICBitmapSource* pSource, const GUID& pixels,
                Held<IWICFormatConverter>& converter) {
    const HRESULT hr = pFactory->CreateFormatConverter(converter.Put());
    return SUCCEEDED(hr) ? converter->Initialize(pSource, pixels, WICBitmapDitherTypeNone, nullptr,
                                                 0, WICBitmapPaletteTypeCustom)
                         : hr;
}

HRESULT Read(IWICImagingFactory* pFactory, IWICBitmapDecoder* pDecoder, CImage& image) {
    Held<IWICBitmapFrameDecode> frame;
    Held<IWICFormatConverter> source;
    UINT nWidth = 0;
    UINT nHeight = 0;
    GUID pixels;
    HRESULT hr = pDecoder->GetFrame(0, frame.Put());
    if (FAILED(hr) || FAILED(hr = frame->GetSize(&nWidth, &nHeight)) ||
        FAILED(hr = frame->GetPixelFormat(&pixels))) {
        return hr;
    }
    // Alpha is multiplied in, as drawing wants it.
    const bool bAlpha = HasAlpha(pFactory, pixels);
    hr = Convert(pFactory, frame.Get(),
                 bAlpha ? GUID_WICPixelFormat32bppPBGRA : GUID_WICPixelFormat24bppBGR, source);
    constexpr UINT kMostPixels = 32767;
    if (FAILED(hr) || nWidth == 0 || nHeight == 0 || nWidth > kMostPixels ||
        nHeight > kMostPixels) {
        return FAILED(hr) ? hr : E_INVALIDARG;
    }
    if (!image.Create(static_cast<int>(nWidth), -static_cast<int>(nHeight), bAlpha ? 32 : 24,
                      bAlpha ? CImage::createAlphaChannel : 0)) {
        return E_OUTOFMEMORY;
    }
    const auto nPitch = static_cast<UINT>(image.GetPitch());
    hr = source->CopyPixels(nullptr, nPitch, nPitch * nHeight, static_cast<BYTE*>(image.GetBits()));
    if (FAILED(hr)) {
        image.Destroy();
    }
    return hr;
}

HRESULT Write(IWICImagingFactory* pFactory, IStream* pStream, const GUID& container,
              const CImage& image) {
    Held<IWICBitmapEncoder> encoder;
    Held<IWICBitmapFrameEncode> frame;
    Held<IWICBitmap> bitmap;
    Held<IPropertyBag2> options;
    Held<IWICFormatConverter> source;
    const auto alpha = image.HasAlpha() ? WICBitmapUsePremultipliedAlpha : WICBitmapIgnoreAlpha;
    GUID pixels = image.HasAlpha() ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat24bppBGR;
    HRESULT hr = pFactory->CreateBitmapFromHBITMAP(image, nullptr, alpha, bitmap.Put());
    const auto width = static_cast<UINT>(image.GetWidth());
    const auto height = static_cast<UINT>(image.GetHeight());
    if (FAILED(hr) || FAILED(hr = pFactory->CreateEncoder(container, nullptr, encoder.Put())) ||
        FAILED(hr = encoder->Initialize(pStream, WICBitmapEncoderNoCache)) ||
        FAILED(hr = encoder->CreateNewFrame(frame.Put(), options.Put())) ||
        FAILED(hr = frame->Initialize(options.Get())) ||
        FAILED(hr = frame->SetSize(width, height)) || FAILED(hr = frame->SetPixelFormat(&pixels)) ||
        FAILED(hr = Convert(pFactory, bitmap.Get(), pixels, source)) ||
        FAILED(hr = frame->WriteSource(source.Get(), nullptr)) || FAILED(hr = frame->Commit())) {
        return hr;
    }
    return encoder->Commit();
}

}  // namespace

HRESULT CImage::Load(LPCTSTR pszFileName) {
    const AfxComInUse com;
    Held<IWICImagingFactory> factory;
    Held<IWICBitmapDecoder> decoder;
    Destroy();
    HRESULT hr = MakeFactory(factory);
    if (SUCCEEDED(hr)) {
        hr = factory->CreateDecoderFromFilename(CA2W(pszFileName), nullptr, GENERIC_READ,
                                                WICDecodeMetadataCacheOnDemand, decoder.Put());
    }
    return SUCCEEDED(hr) ? Read(factory.Get(), decoder.Get(), *this) : hr;
}

HRESULT CImage::Load(IStream* pStream) {
    const AfxComInUse com;
    Held<IWICImagingFactory> factory;
    Held<IWICBitmapDecoder> decoder;
    Destroy();
    HRESULT hr = MakeFactory(factory);
    if (SUCCEEDED(hr)) {
        hr = factory->CreateDecoderFromStream(pStream, nullptr, WICDecodeMetadataCacheOnDemand,
                                              decoder.Put());
    }
    return SUCCEEDED(hr) ? Read(factory.Get(), decoder.Get(), *this) : hr;
}

HRESULT CImage::Save(LPCTSTR pszFileName, REFGUID guidFileType) const {
    const GUID* pContainer = FindFormat(guidFileType, pszFileName);
    if (IsNull() || pContainer == nullptr) {
        return E_INVALIDARG;
    }
    const AfxComInUse com;
    Held<IWICImagingFactory> factory;
    Held<IWICStream> stream;
    HRESULT hr = MakeFactory(factory);
    if (FAILED(hr) || FAILED(hr = factory->CreateStream(stream.Put())) ||
        FAILED(hr = stream->InitializeFromFilename(CA2W(pszFileName), GENERIC_WRITE))) {
        return hr;
    }
    return Write(factory.Get(), stream.Get(), *pContainer, *this);
}

HRESULT CImage::Save(IStream* pStream, REFGUID guidFileType) const {
    const GUID* pContainer = FindFormat(guidFileType, nullptr);
    if (IsNull() || pContainer == nullptr) {
        return E_INVALIDARG;
    }
    const AfxComInUse com;
    Held<IWICImagingFactory> factory;
    const HRESULT hr = MakeFactory(factory);
    return SUCCEEDED(hr) ? Write(factory.Get(), pStream, *pContainer, *this) : hr;
}
