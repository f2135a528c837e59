// FormatNumber: the one way a number format reaches the C runtime. Number
// formats come from the host, from the registry and from archives; a "%s"
// in one would read the double as a pointer, a "%n" write through it. Only
// formats of one double pass:
//
//   plain text, any number of "%%", and exactly one conversion
//   %[flags][width][.precision][l]type
//     flags      any of "-+ #0"
//     width      at most NUMFMT_MAX_WIDTH
//     precision  at most NUMFMT_MAX_PRECISION ("." alone is 0)
//     l          allowed, and has no effect on a double
//     type       e, E, f, g or G
//
// No "*", no other length modifier, no other conversion. The runtime sees
// the conversion alone, written again from what was read; the text around
// it is copied here.
#pragma once

#include "afx/afx.h"

// 1 when pszFormat is a format that FormatNumber takes, else 0.
AFX_EXT_API int AFXAPI IsNumberFormat(const char* pszFormat);

// Writes dValue with pszFormat into pszBuffer of nBuffer bytes. Returns the
// length of the text. A text of nBuffer bytes or more does not fit: the
// buffer is left empty and the length is returned all the same, so that a
// caller can tell a long number from a refused format. A refused format
// leaves the buffer empty and returns -1.
AFX_EXT_API int AFXAPI FormatNumber(char* pszBuffer, int nBuffer, const char* pszFormat, double dValue);
