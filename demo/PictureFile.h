// Writing a bitmap to a picture file: PNG through the platform's imaging
// component where it can encode PNG, else a BMP file.
#pragma once

#include <windows.h>

// Writes hBitmap (a 32-bit DIB section) to pszPath, which must hold room for
// the name to change: when PNG cannot be written, the extension becomes
// ".bmp". TRUE when a file was written.
BOOL WritePictureFile(HBITMAP hBitmap, char* pszPath, size_t nPathSize);
