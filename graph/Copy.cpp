// Copying one graph to another: the assignment that makes a windowless
// drawing copy with the source's frame, limits and tic tables, and
// CopyAppearance, which carries the look and limits of a graph over to a
// graph that keeps its own texts and series. Neither touches series,
// floating labels, the marker line, the legend or the cross hair, and
// neither repaints.
#include "graph/GraphPrv.h"
#include "render/RefLineData.h"

// Copies the pixels and values of a tic table up to and including its last
// index. The slots above it keep what the destination had; the index is held
// inside the table, so a count from elsewhere can never reach past it.
static void CopyTicTable(int nCount, const int* pnSrcPixel, const double* pdSrcValue, int* pnPixel,
                         double* pdValue)
{
    const int nLast = nCount < 10 ? nCount : 10;
    for (int i = 0; i <= nLast; i++) {
        pnPixel[i] = pnSrcPixel[i];
        pdValue[i] = pdSrcValue[i];
    }
}

// Enters every reference line of the source into the destination through
// its own AddReferenceLine: lines of the same name move, the destination's
// other lines stay. With source and destination the same graph only
// existing entries are rewritten, so the walk over the map stays valid.
static void CopyReferenceLines(const CGraphPrv& src, CGraphPrv& dest)
{
    POSITION pos = src.m_mapRefLines.GetStartPosition();
    while (pos != NULL) {
        CString strName;
        CRefLineData* pLine = NULL;
        src.m_mapRefLines.GetNextAssoc(pos, strName, pLine);
        dest.AddReferenceLine(strName, pLine->m_dwFlags, (double)pLine->m_fPosition);
    }
}

CGraphPrv& CGraphPrv::operator=(const CGraphPrv& src)
{
    // The copy never has a window of its own to draw in.
    m_dwStyle = src.m_dwStyle | GS_NOWINDOW;

    m_strGraphTitle = src.m_strGraphTitle;
    m_strXAxisLabel = src.m_strXAxisLabel;
    m_strYAxisLabel[0] = src.m_strYAxisLabel[0];
    m_strYAxisLabel[1] = src.m_strYAxisLabel[1];
    m_strXAxisNumFmt = src.m_strXAxisNumFmt;
    m_strYAxisNumFmt[0] = src.m_strYAxisNumFmt[0];
    m_strYAxisNumFmt[1] = src.m_strYAxisNumFmt[1];

    // The layout travels as it stands: the copy can draw before any SizeGraph.
    m_rectGraph = src.m_rectGraph;
    m_rectPlot = src.m_rectPlot;
    m_rectScroll = src.m_rectScroll;

    m_crBackground = src.m_crBackground;
    m_nGridPenWidth = src.m_nGridPenWidth;
    m_nAutoScaleMode = src.m_nAutoScaleMode;
    m_dwGridType = src.m_dwGridType;
    m_crGrid = src.m_crGrid;
    m_dwGridStyle = src.m_dwGridStyle;

    m_dXMax = src.m_dXMax;
    m_dXMin = src.m_dXMin;
    m_dYMax[0] = src.m_dYMax[0];
    m_dYMax[1] = src.m_dYMax[1];
    m_dYMin[0] = src.m_dYMin[0];
    m_dYMin[1] = src.m_dYMin[1];

    // No mode of the source travels, not even the double-click scaling.
    m_dwState = 0;
    m_bRightAxisDisplayed = src.m_bRightAxisDisplayed;

    m_nXTicCount = src.m_nXTicCount;
    m_nYTicCount[0] = src.m_nYTicCount[0];
    m_nYTicCount[1] = src.m_nYTicCount[1];
    CopyTicTable(m_nXTicCount, src.m_nXTicPixel, src.m_dXTicValue, m_nXTicPixel, m_dXTicValue);
    for (int nAxis = 0; nAxis < 2; nAxis++)
        CopyTicTable(m_nYTicCount[nAxis], src.m_nYTicPixel[nAxis], src.m_dYTicValue[nAxis], m_nYTicPixel[nAxis],
                     m_dYTicValue[nAxis]);

    m_nXTicType = src.m_nXTicType;
    m_nYTicType[0] = src.m_nYTicType[0];
    m_nYTicType[1] = src.m_nYTicType[1];
    m_fXResolution = src.m_fXResolution;
    m_fYResolution[0] = src.m_fYResolution[0];
    m_fYResolution[1] = src.m_fYResolution[1];

    CopyReferenceLines(src, *this);

    // The copy draws no minor tics; with the counts at 0 nothing reads the
    // minor offsets, which stay as they were.
    m_nMinorTics = 0;
    m_nLogPixelsX = 0;
    m_nLogPixelsY = 0;
    m_nMinorTicCount[0] = 0;
    m_nMinorTicCount[1] = 0;
    m_nMinorTicCount[2] = 0;

    m_bPointsStale = FALSE;
    m_pNotify = NULL;   // the copy tells nobody anything; the mask stays

    m_logFont = src.m_logFont;
    m_nPointSize = src.m_nPointSize;
    m_crText = src.m_crText;

    // The font is made anew from the copied description, with the height in
    // tenths of a point as after SetLogFont. Face name, weight and italic
    // flag kept for the stores stay the destination's, and no layout follows.
    if (m_font.m_hObject != NULL)
        m_font.DeleteObject();
    m_logFont.lfHeight = m_nPointSize;
    m_font.CreatePointFontIndirect(&m_logFont, NULL);

    m_wRadarType = src.m_wRadarType;
    m_bColumnReduction = src.m_bColumnReduction;
    m_dRadarXPercent = src.m_dRadarXPercent;
    m_dRadarYPercent = src.m_dRadarYPercent;

    for (int i = 0; i < LIMIT_SLOTS; i++)
        m_rectLimit[i] = src.m_rectLimit[i];
    return *this;
}

void CGraphPrv::CopyAppearance(CGraphPrv& dest) const
{
    dest.m_crBackground = m_crBackground;
    dest.m_nGridPenWidth = m_nGridPenWidth;
    dest.m_dwGridType = m_dwGridType;
    dest.m_crGrid = m_crGrid;
    dest.m_dwGridStyle = m_dwGridStyle;

    // Stored as they are: no smallest span applies here.
    dest.m_dXMax = m_dXMax;
    dest.m_dXMin = m_dXMin;
    dest.m_dYMax[0] = m_dYMax[0];
    dest.m_dYMax[1] = m_dYMax[1];
    dest.m_dYMin[0] = m_dYMin[0];
    dest.m_dYMin[1] = m_dYMin[1];

    // The X tic type sets all three axes of the destination, whose tables
    // and pixels follow from the limits just stored.
    dest.SetTicMarkType(m_nXTicType, m_nMinorTics, NULL);

    CopyReferenceLines(*this, dest);

    // A copy of the description: SetLogFont rewrites the destination's own,
    // which may be this one. It also lays the destination out again.
    LOGFONT logFont = m_logFont;
    const int nPointSize = m_nPointSize;
    const COLORREF crText = m_crText;
    dest.SetLogFont(&logFont, nPointSize, crText);

    dest.m_wRadarType = m_wRadarType;
    dest.m_dRadarXPercent = m_dRadarXPercent;
    dest.m_dRadarYPercent = m_dRadarYPercent;
}
