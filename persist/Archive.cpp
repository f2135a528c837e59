// The graph in an archive: its settings, reference lines and floating labels
// as one flat stream of fields, written and read in the same order. No
// series data, no tools, no run-time mode. Loading takes the stream's values
// as they are, bypassing the setters; only the number formats go through
// theirs, at the end, and the tic tables follow them.
//
// What leaves Serialize: the archive's CArchiveException* (endOfFile for a
// stream cut short) and the file's CFileException*. A lack of memory while
// loading ends the load too, as CArchiveException generic: the object that
// could not be made leaves the stream position behind, so nothing after it
// could be read anyway. The same generic cause ends a load at a grid pen
// width or a text size that no drawing could use.
#include "graph/GraphPrv.h"
#include "afx/afxarch.h"
#include "render/RefLineData.h"
#include "persist/ArchiveFields.h"
#include <string.h>

namespace {

const char s_szSignature[] = "ZPXGRAPH 1.0";

} // namespace

int ReadBounded(CArchive& ar, int nMin, int nMax)
{
    int n = 0;
    ar >> n;
    if (n < nMin || n > nMax)
        AfxThrowArchiveException(CArchiveException::generic);
    return n;
}

void CopyFaceName(char* pszFace, const CString& strFace)
{
    const int nMax = LF_FACESIZE - 1;
    int n = 0;
    while (n < strFace.GetLength() && strFace[n] != '\0') {
        const int nChar = ::IsDBCSLeadByte((BYTE)strFace[n]) ? 2 : 1;
        if (n + nChar > nMax || n + nChar > strFace.GetLength())
            break;
        n += nChar;
    }
    memcpy(pszFace, (LPCSTR)strFace, n);
    pszFace[n] = '\0';
}

void CGraphPrv::Serialize(CArchive& ar)
{
    try {
        if (ar.IsStoring())
            StoreToArchive(ar);
        else
            LoadFromArchive(ar);
    } catch (CMemoryException* e) {
        e->Delete();
        AfxThrowArchiveException(CArchiveException::generic);
    }
}

void CGraphPrv::StoreToArchive(CArchive& ar)
{
    ar << CString(s_szSignature);
    ar << m_dwStyle;
    ar << m_strGraphTitle << m_strXAxisLabel << m_strYAxisLabel[0] << m_strYAxisLabel[1];
    ar << m_strXAxisNumFmt << m_strYAxisNumFmt[0] << m_strYAxisNumFmt[1];
    ar << m_crBackground << m_nGridPenWidth << m_nAutoScaleMode << m_dwGridType << m_crGrid << m_dwGridStyle;
    ar << m_bRightAxisDisplayed << m_nXTicType << m_nYTicType[0] << m_nYTicType[1];

    ar << (DWORD)m_mapRefLines.GetCount();
    POSITION pos = m_mapRefLines.GetStartPosition();
    while (pos != NULL) {
        CString strName;
        CRefLineData* pLine = NULL;
        m_mapRefLines.GetNextAssoc(pos, strName, pLine);
        ar << strName;
        pLine->Serialize(ar);
    }

    ar << m_nMinorTics << m_nPointSize << m_crText << m_strFaceName << m_lFontWeight << m_bFontItalic;
    ar << m_wRadarType << m_dRadarXPercent << m_dRadarYPercent;
    ar << m_dXMax << m_dXMin << m_dYMax[0] << m_dYMax[1] << m_dYMin[0] << m_dYMin[1];
    SerializeFloatingLabels(ar);
}

void CGraphPrv::LoadFromArchive(CArchive& ar)
{
    // The signature is read and dropped: any text there loads alike.
    CString strSignature;
    ar >> strSignature;
    ar >> m_dwStyle;
    ar >> m_strGraphTitle >> m_strXAxisLabel >> m_strYAxisLabel[0] >> m_strYAxisLabel[1];
    ar >> m_strXAxisNumFmt >> m_strYAxisNumFmt[0] >> m_strYAxisNumFmt[1];
    ar >> m_crBackground;
    m_nGridPenWidth = ReadBounded(ar, 0, ARCHIVE_MAX_GRID_PEN_WIDTH);
    ar >> m_nAutoScaleMode >> m_dwGridType >> m_crGrid >> m_dwGridStyle;
    ar >> m_bRightAxisDisplayed >> m_nXTicType >> m_nYTicType[0] >> m_nYTicType[1];

    // Lines are read one by one, so a count larger than the stream ends at
    // its end. A name the graph has already is overwritten; others stay.
    DWORD nLines = 0;
    ar >> nLines;
    for (DWORD i = 0; i < nLines; i++) {
        CString strName;
        ar >> strName;
        CRefLineData* pLine = NULL;
        if (!m_mapRefLines.Lookup(strName, pLine)) {
            pLine = new CRefLineData;
            try {
                m_mapRefLines.SetAt(strName, pLine);
            } catch (CException*) {
                delete pLine;
                throw;
            }
        }
        pLine->Serialize(ar);
    }

    ar >> m_nMinorTics;
    m_nPointSize = ReadBounded(ar, -ARCHIVE_MAX_POINT_SIZE, ARCHIVE_MAX_POINT_SIZE);
    ar >> m_crText >> m_strFaceName >> m_lFontWeight >> m_bFontItalic;
    RebuildFontFromArchive();
    ar >> m_wRadarType >> m_dRadarXPercent >> m_dRadarYPercent;
    ar >> m_dXMax >> m_dXMin >> m_dYMax[0] >> m_dYMax[1] >> m_dYMin[0] >> m_dYMin[1];
    SerializeFloatingLabels(ar);

    // The formats are passed as copies: each setter assigns its own field.
    SetXAxisNumFmt(CString(m_strXAxisNumFmt));
    SetYAxisNumFmt(0, CString(m_strYAxisNumFmt[0]));
    SetYAxisNumFmt(1, CString(m_strYAxisNumFmt[1]));
    CalcXTicValues();
    CalcYTicValues(0);
    CalcYTicValues(1);
    CalcTicMarkPixels();
}

void CGraphPrv::RebuildFontFromArchive()
{
    // A face name longer than the field is cut to it; m_strFaceName keeps the
    // whole text, so storing again gives the stream's bytes back.
    CopyFaceName(m_logFont.lfFaceName, m_strFaceName);
    m_logFont.lfWeight = m_lFontWeight;
    m_logFont.lfItalic = (BYTE)m_bFontItalic;
    if (m_font.GetSafeHandle() != NULL)
        m_font.DeleteObject();
    // The height's sign does not matter to the creation, which takes its
    // magnitude; negated without overflow for any stored size.
    m_logFont.lfHeight = (LONG)(0u - (DWORD)m_nPointSize);
    m_font.CreatePointFontIndirect(&m_logFont, NULL);
}
