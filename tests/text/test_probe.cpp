#include "TextTestUtil.h"
#include <mbctype.h>
TEST(Probe, Dump)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.2f");
    p->SetYAxisNumFmt(1, "%.2f");
    p->SetGraphTitle("Title");
    p->SetXAxisLabel("X axis");
    p->SetYAxisLabel(0, "Left");
    p->SetYAxisLabel(1, "Right");
    p->SetXAxisLimits(0.0, 1.0);
    std::vector<TextCall> calls = RecordText([&](CDC* pDC) { p->PutLabels(pDC); });
    for (auto& c : calls) printf("%d %d '%s'\n", c.x, c.y, c.text.c_str());
    TEXTMETRIC tm = g.Metrics();
    printf("tm h %d el %d ave %d max %d ov %d pf %x\n", (int)tm.tmHeight, (int)tm.tmExternalLeading, (int)tm.tmAveCharWidth, (int)tm.tmMaxCharWidth, (int)tm.tmOverhang, (int)tm.tmPitchAndFamily);
    printf("plot %d %d %d %d graph %d %d %d %d\n", (int)p->m_rectPlot.left, (int)p->m_rectPlot.top, (int)p->m_rectPlot.right, (int)p->m_rectPlot.bottom, (int)p->m_rectGraph.left, (int)p->m_rectGraph.top, (int)p->m_rectGraph.right, (int)p->m_rectGraph.bottom);
    for (int i = 0; i < 6; i++) printf("lim %d: %d %d %d %d\n", i, (int)p->m_rectLimit[i].left, (int)p->m_rectLimit[i].top, (int)p->m_rectLimit[i].right, (int)p->m_rectLimit[i].bottom);
    p->PutLabels(g.DC());
    printf("mbcp %d\n", _getmbcp());
}
TEST(Probe, Picture)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.2f");
    p->SetYAxisNumFmt(1, "%.2f");
    p->SetGraphTitle("Title");
    p->SetXAxisLabel("X axis");
    p->SetYAxisLabel(0, "Left axis");
    p->SetYAxisLabel(1, "Right axis");
    p->SetXAxisLimits(0.0, 1.0);
    p->SetTicMarkType(1, 1, g.DC());
    p->SetGridAttributes(0x1C, 0xC0C0C0, 2);
    p->m_nYTicType[0] = 0; // allow grid
    p->m_dwGridType = 0x1C;
    CDC* pDC = g.DC();
    pDC->Rectangle(p->m_rectPlot.left, p->m_rectPlot.top, p->m_rectPlot.right + 1, p->m_rectPlot.bottom + 1);
    p->PlotTics(pDC);
    p->PlotGrid(pDC);
    p->PutLabels(pDC);
    // write BMP
    FILE* f = fopen("probe.ppm", "wb");
    fprintf(f, "P6 400 300 255\n");
    for (int y = 0; y < 300; y++) for (int x = 0; x < 400; x++) { COLORREF c = g.m_canvas.At(x, y); unsigned char b[3] = { GetRValue(c), GetGValue(c), GetBValue(c) }; fwrite(b, 1, 3, f); }
    fclose(f);
}
TEST(Probe, Fonts)
{
    const char* names[] = { "System", "Fixedsys", "MS Sans Serif", "Courier", "Small Fonts", "Terminal", "Arial", "Tahoma" };
    HDC hdc = ::CreateCompatibleDC(NULL);
    printf("add %d\n", AddFontResourceExA("Z:\\usr\\share\\wine\\fonts\\sserife.fon", FR_PRIVATE, 0));
    printf("add %d\n", AddFontResourceExA("Z:\\usr\\share\\wine\\fonts\\coure.fon", FR_PRIVATE, 0));
    for (const char* n : names) {
        for (int cs : {0, 134}) {
        LOGFONT lf; memset(&lf, 0, sizeof(lf)); lf.lfHeight = 100; lf.lfCharSet = (BYTE)cs; lf.lfOutPrecision = OUT_RASTER_PRECIS; strcpy(lf.lfFaceName, n);
        CFont f; f.CreatePointFontIndirect(&lf);
        HGDIOBJ o = SelectObject(hdc, f.m_hObject);
        TEXTMETRICA tm; GetTextMetricsA(hdc, &tm); char face[64]; GetTextFaceA(hdc, 64, face);
        printf("%s -> %s pf %x h %d cs %d\n", n, face, tm.tmPitchAndFamily, (int)tm.tmHeight, tm.tmCharSet);
        SelectObject(hdc, o);
    }}
    DeleteDC(hdc);
}
