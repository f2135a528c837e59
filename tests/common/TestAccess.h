// The one way the tests reach the internals of CGraphPrv: the limit setters
// of the editors and the scaling, the transforms, the tic calculators, the
// clip, and the calls on the notification sink.
#pragma once

#include "graph/GraphPrv.h"

class CGraphTestAccess
{
public:
    static void sg_xrange(CGraphPrv* p, double dMax, double dMin) { p->sg_xrange(dMax, dMin); }
    static void sg_yrange(CGraphPrv* p, double dMax, double dMin, int nAxis) { p->sg_yrange(dMax, dMin, nAxis); }
    static void HorzXform(CGraphPrv* p, double* pdScale, double* pdOffset) { p->HorzXform(pdScale, pdOffset); }
    static void VertXform(CGraphPrv* p, double* pdScale, double* pdOffset, int nAxis)
    {
        p->VertXform(pdScale, pdOffset, nAxis);
    }
    static int DataToPixelX(CGraphPrv* p, double dX) { return p->DataToPixelX(dX); }
    static int DataToPixelY(CGraphPrv* p, double dY, int nAxis) { return p->DataToPixelY(dY, nAxis); }
    static void XformPlotData(CGraphPrv* p, CPlotData* pData, POINT* pPoints) { p->XformPlotData(pData, pPoints); }
    static void CalcTicMarkPixels(CGraphPrv* p) { p->CalcTicMarkPixels(); }
    static int ClipDrawLine(CGraphPrv* p, const CRect& rect, POINT& pt1, POINT& pt2, DWORD& dwFlags)
    {
        return p->ClipDrawLine(rect, pt1, pt2, dwFlags);
    }
    template <class... Args>
    static void NotifyApplication(CGraphPrv* p, Args... args) { p->NotifyApplication(args...); }
};
