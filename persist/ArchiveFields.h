// Field rules shared by the records of the graph's archive stream: numbers
// that must lie in a range before they reach an object, and face names cut
// to the LOGFONT field.
#pragma once

#include "afx/afxarch.h"
#include <windows.h>

// Sizes beyond what any drawing could use: a stream that holds one is taken
// as damaged, rather than leave a graph whose next paint would take minutes.
const int ARCHIVE_MAX_GRID_PEN_WIDTH = 255;   // pixels
const int ARCHIVE_MAX_POINT_SIZE = 16380;     // tenths of a point, either sign

// A number field that must lie within [nMin, nMax], read aside first so a
// damaged value never reaches the object (CArchiveException generic).
int ReadBounded(CArchive& ar, int nMin, int nMax);

// The longest prefix of strFace that fits lfFaceName with its terminator,
// cut between characters, never inside a double-byte one.
void CopyFaceName(char* pszFace, const CString& strFace);
