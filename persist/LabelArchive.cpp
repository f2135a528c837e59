// The floating labels in the graph's archive stream: their count, then each
// label's record. What is stored is what the user sees, also while a label
// is being edited. A loaded label gets a new identifier and an editor at
// once; loading adds to the labels the graph has.
#include "graph/GraphPrv.h"
#include "interact/FloatingEditWnd.h"
#include "interact/FloatingLabel.h"
#include "persist/ArchiveFields.h"

void CGraphPrv::SerializeFloatingLabels(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar << (DWORD)m_mapFloatingLabels.GetCount();
        POSITION pos = m_mapFloatingLabels.GetStartPosition();
        while (pos != NULL) {
            WORD wId;
            CFloatingLabel* pLabel;
            m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
            pLabel->Serialize(ar);
        }
        return;
    }
    // Label by label: a count larger than the stream ends at its end, with
    // at most one label made that found no record.
    DWORD nLabels = 0;
    ar >> nLabels;
    for (DWORD i = 0; i < nLabels; i++) {
        const WORD wId = ++m_wNextLabelId;
        CFloatingLabel* pLabel = new CFloatingLabel((CWnd*)this, wId);
        m_mapFloatingLabels.SetAt(wId, pLabel);
        pLabel->Serialize(ar);
    }
}

void CFloatingLabel::Serialize(CArchive& ar)
{
    const BOOL bEditor = m_pEdit != NULL && m_pEdit->m_hWnd != NULL;
    if (ar.IsStoring()) {
        TakeText();
        if (bEditor)
            m_pEdit->GetFont(&m_logFont, &m_nPointSize);
        const LONG alRect[4] = { m_rect.left, m_rect.top, m_rect.right, m_rect.bottom };
        ar.Write(alRect, sizeof(alRect));
        ar << m_dX << m_dY << (DWORD)m_crText << m_strText << (DWORD)m_nPointSize;
        ar << CString(m_logFont.lfFaceName) << (DWORD)m_logFont.lfWeight << (BYTE)m_logFont.lfItalic;
        return;
    }

    // The rectangle is read as a run of bytes; a short run shows at the next field.
    LONG alRect[4] = { 0, 0, 0, 0 };
    ar.Read(alRect, sizeof(alRect));
    m_rect.SetRect(alRect[0], alRect[1], alRect[2], alRect[3]);
    DWORD crText;
    ar >> m_dX >> m_dY >> crText >> m_strText;
    m_crText = crText;
    if (bEditor)
        m_pEdit->SetWindowText(m_strText);
    m_nPointSize = ReadBounded(ar, -ARCHIVE_MAX_POINT_SIZE, ARCHIVE_MAX_POINT_SIZE);
    CString strFace;
    DWORD dwWeight;
    BYTE bItalic;
    ar >> strFace >> dwWeight >> bItalic;
    CopyFaceName(m_logFont.lfFaceName, strFace);
    m_logFont.lfWeight = (LONG)dwWeight;
    m_logFont.lfItalic = bItalic;

    // The font is made anew from the record, and its description read back
    // from it; the editor takes font, size and colour.
    m_logFont.lfHeight = m_nPointSize;
    m_font.DeleteObject();
    if (m_font.CreatePointFontIndirect(&m_logFont, NULL))
        m_font.GetLogFont(&m_logFont);
    if (bEditor) {
        m_pEdit->CWnd::SetFont(&m_font, TRUE);
        m_pEdit->SetFont(&m_logFont, m_nPointSize);
        m_pEdit->SetColor(m_crText);
    }
}
