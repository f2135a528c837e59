// Picture files for the demo: PNG by the Windows Imaging Component, BMP as
// the fall-back.
#include "demo/PictureFile.h"
#include <wincodec.h>
#include <stdio.h>
#include <string.h>

namespace {

template <class T>
void Release(T*& p)
{
    if (p != NULL) {
        p->Release();
        p = NULL;
    }
}

BOOL WritePng(HBITMAP hBitmap, const char* pszPath)
{
    BITMAP bm;
    if (::GetObjectA(hBitmap, sizeof(bm), &bm) == 0 || bm.bmBits == NULL || bm.bmBitsPixel != 32)
        return FALSE;
    HRESULT hrInit = ::CoInitialize(NULL);
    BOOL bOk = FALSE;
    IWICImagingFactory* pFactory = NULL;
    IWICStream* pStream = NULL;
    IWICBitmapEncoder* pEncoder = NULL;
    IWICBitmapFrameEncode* pFrame = NULL;
    wchar_t szPath[MAX_PATH];
    ::MultiByteToWideChar(CP_ACP, 0, pszPath, -1, szPath, MAX_PATH);
    do {
        if (FAILED(::CoCreateInstance(CLSID_WICImagingFactory, NULL, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, (void**)&pFactory)))
            break;
        if (FAILED(pFactory->CreateStream(&pStream)) || FAILED(pStream->InitializeFromFilename(szPath, GENERIC_WRITE)))
            break;
        if (FAILED(pFactory->CreateEncoder(GUID_ContainerFormatPng, NULL, &pEncoder)) ||
            FAILED(pEncoder->Initialize(pStream, WICBitmapEncoderNoCache)))
            break;
        if (FAILED(pEncoder->CreateNewFrame(&pFrame, NULL)) || FAILED(pFrame->Initialize(NULL)))
            break;
        UINT nWidth = (UINT)bm.bmWidth, nHeight = (UINT)abs(bm.bmHeight);
        WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGR;
        if (FAILED(pFrame->SetSize(nWidth, nHeight)) || FAILED(pFrame->SetPixelFormat(&format)))
            break;
        if (!IsEqualGUID(format, GUID_WICPixelFormat32bppBGR))
            break;   // the encoder wants another layout: leave it to the BMP writer
        if (FAILED(pFrame->WritePixels(nHeight, (UINT)bm.bmWidthBytes, (UINT)bm.bmWidthBytes * nHeight,
                                       (BYTE*)bm.bmBits)))
            break;
        bOk = SUCCEEDED(pFrame->Commit()) && SUCCEEDED(pEncoder->Commit());
    } while (false);
    Release(pFrame);
    Release(pEncoder);
    Release(pStream);
    Release(pFactory);
    if (SUCCEEDED(hrInit))
        ::CoUninitialize();
    return bOk;
}

BOOL WriteBmp(HBITMAP hBitmap, const char* pszPath)
{
    DIBSECTION ds;
    if (::GetObjectA(hBitmap, sizeof(ds), &ds) != sizeof(ds) || ds.dsBm.bmBits == NULL)
        return FALSE;
    const BITMAP& bm = ds.dsBm;
    DWORD nImage = (DWORD)bm.bmWidthBytes * (DWORD)abs(bm.bmHeight);
    BITMAPFILEHEADER file;
    BITMAPINFOHEADER info;
    memset(&file, 0, sizeof(file));
    memset(&info, 0, sizeof(info));
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + nImage;
    info.biSize = sizeof(info);
    info.biWidth = bm.bmWidth;
    info.biHeight = ds.dsBmih.biHeight;   // keeps the row order of the section
    info.biPlanes = 1;
    info.biBitCount = bm.bmBitsPixel;
    info.biSizeImage = nImage;
    FILE* pFile = fopen(pszPath, "wb");
    if (pFile == NULL)
        return FALSE;
    BOOL bOk = fwrite(&file, sizeof(file), 1, pFile) == 1 && fwrite(&info, sizeof(info), 1, pFile) == 1 &&
               fwrite(bm.bmBits, nImage, 1, pFile) == 1;
    fclose(pFile);
    return bOk;
}

} // namespace

BOOL WritePictureFile(HBITMAP hBitmap, char* pszPath, size_t nPathSize)
{
    if (WritePng(hBitmap, pszPath))
        return TRUE;
    char* pDot = strrchr(pszPath, '.');
    if (pDot != NULL && (size_t)(pDot - pszPath) + 5 <= nPathSize)
        strcpy(pDot, ".bmp");
    return WriteBmp(hBitmap, pszPath);
}
