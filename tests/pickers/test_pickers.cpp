// The colour palette and the wells, driven through their windows: the
// palette made from its window class, its cells read as pixels, keys and
// clicks sent as messages; the wells opened under a button, picked with
// the mouse, closed by a choice or by a lost focus.
#include "TestUtil.h"
#include "ModalScript.h"
#include "sheet/ColorPalette.h"
#include "sheet/Wells.h"
#include <vector>

namespace {

const COLORREF BLACK = RGB(0, 0, 0);
COLORREF Face() { return ::GetSysColor(COLOR_BTNFACE); }

COLORREF PixelOf(HWND hWnd, int x, int y)
{
    HDC hDC = ::GetDC(hWnd);
    const COLORREF cr = ::GetPixel(hDC, x, y);
    ::ReleaseDC(hWnd, hDC);
    return cr;
}

void Send(HWND hWnd, UINT nMsg, int x, int y) { ::SendMessageA(hWnd, nMsg, 0, MAKELPARAM(x, y)); }
void Key(HWND hWnd, UINT nKey) { ::SendMessageA(hWnd, WM_KEYDOWN, nKey, 1); }

// A dialog stand-in: a visible top-level window that keeps the pickers'
// messages, with a button under which wells open.
class PickerDialog : public CWnd
{
public:
    struct Note { UINT nMsg; WPARAM wParam; LPARAM lParam; };

    PickerDialog()
    {
        LPCSTR lpszClass = AfxRegisterWndClass(0, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW), (HBRUSH)(COLOR_BTNFACE + 1));
        CreateEx(0, lpszClass, "pickers", WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 100, 400, 300, NULL, NULL);
        m_button.Create("", WS_VISIBLE | BS_PUSHBUTTON, CRect(20, 30, 120, 50), this, 77);
        TestHost::Pump();
    }
    ~PickerDialog() { DestroyWindow(); TestHost::Pump(); }

    // A palette child made by class name, as a dialog template makes it.
    CColorPalette* MakePalette(int nWidth, int nHeight, UINT nID = 1234)
    {
        HWND hWnd = ::CreateWindowExA(0, PALETTE_WINDOW_CLASS, "", WS_CHILD | WS_VISIBLE, 150, 80, nWidth, nHeight,
                                      m_hWnd, (HMENU)(UINT_PTR)nID, NULL, NULL);
        ::UpdateWindow(hWnd);
        return (CColorPalette*)CWnd::FromHandlePermanent(hWnd);
    }
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message >= WM_PICKER_COLOR && message <= WM_PICKER_ADDCOLOR)
            m_notes.push_back(Note{ message, wParam, lParam });
        return CWnd::WindowProc(message, wParam, lParam);
    }

    CButton m_button;
    std::vector<Note> m_notes;
};

// The drop button's side of a well: the values handed to it.
class Owner : public CWellOwner
{
public:
    virtual void SetValueAndNotify(DWORD dwValue) { m_values.push_back(dwValue); }
    std::vector<DWORD> m_values;
};

// A palette of 48 cells 20 by 14: cell i at (23 (i mod 8) + 3, 17 (i / 8) + 3).
const int PW = 8 * 21 + 25, PH = 6 * 15 + 3 * 6 + 1;
CPoint CellCentre(int i) { return CPoint(23 * (i % 8) + 13, 17 * (i / 8) + 10); }

} // namespace

TEST(Palette, TheClassMakesAPaletteThatPaintsItsCells)
{
    PickerDialog dlg;
    CColorPalette* p = dlg.MakePalette(PW, PH);
    ASSERT_TRUE(p != NULL && p->IsKindOf(RUNTIME_CLASS(CColorPalette)));
    EXPECT_EQ(0x4800u, (UINT)::GetClassLongPtrA(p->m_hWnd, GCL_STYLE));
    LOGBRUSH lb;
    ::GetObjectA((HGDIOBJ)::GetClassLongPtrA(p->m_hWnd, GCLP_HBRBACKGROUND), sizeof(lb), &lb);
    EXPECT_EQ((UINT)BS_SOLID, lb.lbStyle);
    EXPECT_EQ(Face(), lb.lbColor);
    EXPECT_EQ(DLGC_WANTARROWS, p->SendMessage(WM_GETDLGCODE));
    EXPECT_EQ(48, p->m_nCells);
    EXPECT_EQ(PALETTE_NO_SELECTION, p->m_nSelected);

    EXPECT_EQ(CRect(26, 20, 46, 34), p->m_pCellRects[9]);
    EXPECT_EQ(0x8080FFu, p->m_pColors[0]);   // the base colours
    EXPECT_EQ(0xFFFFFFu, p->m_pColors[47]);
    for (int i = 0; i < 48; i++)
        EXPECT_EQ(p->m_pColors[i], PixelOf(p->m_hWnd, CellCentre(i).x, CellCentre(i).y)) << "cell " << i;
    EXPECT_EQ(Face(), PixelOf(p->m_hWnd, 24, 10));   // between cells 0 and 1
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), PixelOf(p->m_hWnd, 3, 3));   // the sunken edge
}

TEST(Palette, SelectColorFramesTheFirstCellOfTheColour)
{
    PickerDialog dlg;
    CColorPalette* p = dlg.MakePalette(PW, PH);
    HWND h = p->m_hWnd;
    const CRect r38 = p->m_pCellRects[38], r46 = p->m_pCellRects[46];
    EXPECT_EQ(0, p->SelectColor(0x123456));
    EXPECT_EQ(PALETTE_NO_SELECTION, p->m_nSelected);
    EXPECT_EQ(1, p->SelectColor(0x400040));   // stands at 38 and 46
    EXPECT_EQ(38, p->m_nSelected);
    EXPECT_EQ(38, p->m_nFocusCell);
    EXPECT_EQ(BLACK, PixelOf(h, r38.left - 1, r38.top - 1));
    EXPECT_EQ(Face(), PixelOf(h, r46.left - 1, r46.top - 1));
    EXPECT_EQ(1, p->SelectColor(0x400040));   // the same cell keeps its frame
    EXPECT_EQ(BLACK, PixelOf(h, r38.right, r38.bottom));
    EXPECT_EQ(1, p->SelectColor(p->m_pColors[0]));   // the frame moves
    EXPECT_EQ(Face(), PixelOf(h, r38.left - 1, r38.top - 1));
    EXPECT_EQ(1, p->ClearSelection());
    EXPECT_EQ(Face(), PixelOf(h, 2, 2));
    EXPECT_EQ(PALETTE_NO_SELECTION, p->m_nSelected);
    EXPECT_EQ(0, p->m_nFocusCell);
    ::InvalidateRect(h, NULL, TRUE);
    ::UpdateWindow(h);
    EXPECT_EQ(Face(), PixelOf(h, 2, 2));
}

TEST(Palette, KeysMoveTheFocusCellAndSpaceChooses)
{
    PickerDialog dlg;
    CColorPalette* p = dlg.MakePalette(PW, PH);
    DWORD adwColors[16];
    for (int i = 0; i < 16; i++)
        adwColors[i] = RGB(10 * i, 0, 255 - i);
    p->SetColors(adwColors, 16);   // two rows
    p->SetFocus();
    EXPECT_TRUE(p->m_bHasFocus);
    HWND h = p->m_hWnd;
    struct { UINT nKey; int nFrom, nTo; } moves[] = {
        { VK_LEFT, 0, 0 }, { VK_UP, 0, 0 }, { VK_DOWN, 0, 8 }, { VK_DOWN, 8, 8 }, { VK_LEFT, 8, 7 },
        { VK_UP, 7, 7 }, { VK_DOWN, 7, 15 }, { VK_RIGHT, 15, 15 }, { VK_UP, 15, 7 }, { VK_RIGHT, 7, 8 },
    };
    for (const auto& m : moves) {
        ASSERT_EQ(m.nFrom, p->m_nFocusCell);
        Key(h, m.nKey);
        EXPECT_EQ(m.nTo, p->m_nFocusCell) << "key " << m.nKey << " from " << m.nFrom;
    }
    EXPECT_EQ(PALETTE_NO_SELECTION, p->m_nSelected);   // moves choose nothing
    EXPECT_TRUE(dlg.m_notes.empty());
    Key(h, VK_SPACE);
    EXPECT_EQ(8, p->m_nSelected);
    ASSERT_EQ(1u, dlg.m_notes.size());
    EXPECT_EQ((UINT)WM_APP + 1000, dlg.m_notes[0].nMsg);
    EXPECT_EQ(1234u, dlg.m_notes[0].wParam);
    EXPECT_EQ((LPARAM)adwColors[8], dlg.m_notes[0].lParam);

    ::SetFocus(dlg.m_hWnd);
    EXPECT_FALSE(p->m_bHasFocus);
}

TEST(Palette, AddColorFillsTheFocusCellAndWrapsAround)
{
    PickerDialog dlg;
    CColorPalette* p = dlg.MakePalette(PW, PH);
    DWORD adwColors[16] = {};
    p->SetColors(adwColors, 16);
    for (int i = 0; i < 17; i++)
        EXPECT_EQ(1, p->AddColor(RGB(0, 0, 100 + i)));
    EXPECT_EQ(RGB(0, 0, 116), adwColors[0]);   // the 17th overwrote the first
    EXPECT_EQ(RGB(0, 0, 101), adwColors[1]);
    EXPECT_EQ(RGB(0, 0, 115), adwColors[15]);
    EXPECT_EQ(1, p->m_nFocusCell);
    ::UpdateWindow(p->m_hWnd);
    const CPoint c0 = p->m_pCellRects[0].CenterPoint(), c15 = p->m_pCellRects[15].CenterPoint();
    EXPECT_EQ(RGB(0, 0, 116), PixelOf(p->m_hWnd, c0.x, c0.y));
    EXPECT_EQ(RGB(0, 0, 115), PixelOf(p->m_hWnd, c15.x, c15.y));
}

TEST(Palette, AClickChoosesTheCellAndTellsTheDialog)
{
    PickerDialog dlg;
    CColorPalette* p = dlg.MakePalette(PW, PH, 555);
    HWND h = p->m_hWnd;
    Send(h, WM_LBUTTONDOWN, 24, 10);   // between two cells: nothing
    EXPECT_TRUE(dlg.m_notes.empty());
    EXPECT_EQ(PALETTE_NO_SELECTION, p->m_nSelected);
    Send(h, WM_LBUTTONDOWN, CellCentre(13).x, CellCentre(13).y);
    ASSERT_EQ(1u, dlg.m_notes.size());
    EXPECT_EQ((UINT)WM_APP + 1000, dlg.m_notes[0].nMsg);
    EXPECT_EQ(555u, dlg.m_notes[0].wParam);
    EXPECT_EQ((LPARAM)p->m_pColors[13], dlg.m_notes[0].lParam);
    EXPECT_EQ(13, p->m_nSelected);
    EXPECT_EQ(13, p->m_nFocusCell);
    EXPECT_EQ(h, ::GetFocus());
    EXPECT_EQ(BLACK, PixelOf(h, p->m_pCellRects[13].left - 1, p->m_pCellRects[13].top - 1));
    Send(h, WM_LBUTTONUP, CellCentre(13).x, CellCentre(13).y);
    Send(h, WM_LBUTTONDOWN, CellCentre(2).x, CellCentre(2).y);   // with the focus
    EXPECT_EQ(2u, dlg.m_notes.size());
    EXPECT_EQ(Face(), PixelOf(h, p->m_pCellRects[13].left - 1, p->m_pCellRects[13].top - 1));
    EXPECT_EQ(2, p->m_nSelected);
}

TEST(Wells, EachOpensUnderItsButtonInItsSizeAndClosesOnALostFocus)
{
    PickerDialog dlg;
    CRect rectButton;
    dlg.m_button.GetWindowRect(&rectButton);
    struct { CPickerWell* pWell; int cx, cy; const char* pszTitle; } wells[] = {
        { new CColorWell, 78, 120, "Color Well" },
        { new CLineTypeWell(FALSE), 40, 96, "Line Type Well" },
        { new CLineTypeWell(TRUE), 40, 114, "Line Type Well" },
        { new CAnnotationWell, 54, 78, "Annotation Type Well" },
    };
    for (const auto& w : wells) {
        Owner owner;
        ASSERT_TRUE(w.pWell->OpenUnder(&dlg.m_button, &owner));
        HWND h = w.pWell->m_hWnd;
        CRect rect;
        ::GetWindowRect(h, &rect);
        EXPECT_EQ(CRect(rectButton.left, rectButton.bottom, rectButton.left + w.cx, rectButton.bottom + w.cy), rect);
        char szTitle[64];
        ::GetWindowTextA(h, szTitle, sizeof(szTitle));
        EXPECT_STREQ(w.pszTitle, szTitle);
        EXPECT_EQ(h, ::GetFocus());
        EXPECT_EQ(dlg.m_hWnd, ::GetWindow(h, GW_OWNER));   // a popup's owner is the button's top window
        ::SetFocus(dlg.m_hWnd);
        EXPECT_FALSE(::IsWindow(h));
        EXPECT_TRUE(owner.m_values.empty());
    }
}

TEST(Wells, TheyPaintTheirCells)
{
    PickerDialog dlg;
    CColorWell* pColor = new CColorWell;
    pColor->OpenUnder(&dlg.m_button, NULL);
    HWND h = pColor->m_hWnd;
    ::UpdateWindow(h);
    const COLORREF acr[20] = { 0xFFFFFF, 0x000000, 0xC0C0C0, 0x808080, 0x0000FF, 0x000080, 0x00FFFF,
                               0x008080, 0x00FF00, 0x008000, 0xFFFF00, 0x808000, 0xFF0000, 0x800000,
                               0xFF00FF, 0x800080, 0xC0DCC0, 0xF0CAA6, 0xFFFFFF, 0xC0C0C0 };
    for (int i = 0; i < 20; i++)
        EXPECT_EQ(acr[i], PixelOf(h, 4 + 18 * (i % 4) + 8, 4 + 18 * (i / 4) + 8)) << "cell " << i;
    EXPECT_EQ(CRect(4, 98, 74, 116), pColor->m_rectOther);
    EXPECT_EQ(CRect(3, 3, 75, 91), pColor->m_rectGrid);
    ::DestroyWindow(h);

    CLineTypeWell* pLine = new CLineTypeWell(TRUE);
    pLine->OpenUnder(&dlg.m_button, NULL);
    h = pLine->m_hWnd;
    ::UpdateWindow(h);
    EXPECT_EQ(BLACK, PixelOf(h, 20, 12));    // solid line through cell 0
    EXPECT_EQ(Face(), PixelOf(h, 20, 102));  // style 5: no line
    ::DestroyWindow(h);

    CAnnotationWell* pMarks = new CAnnotationWell;
    pMarks->OpenUnder(&dlg.m_button, NULL);
    h = pMarks->m_hWnd;
    ::UpdateWindow(h);
    EXPECT_EQ(BLACK, PixelOf(h, 28 + 11, 22 + 8));   // the square of cell 3 covers its centre
    EXPECT_EQ(Face(), PixelOf(h, 4 + 11, 4 + 8));     // cell 0: no mark
    ::DestroyWindow(h);
}

TEST(Wells, TheHotCellIsPickedByTheHitTest)
{
    PickerDialog dlg;
    struct { CPickerWell* pWell; CPoint ptHot; DWORD dwValue; } picks[] = {
        { new CColorWell, CPoint(3 + 36 + 5, 3 + 54 + 5), 0xFF00FF },   // cell 14
        { new CLineTypeWell(TRUE), CPoint(30, 3 + 90 + 2), 5 },
        { new CLineTypeWell(FALSE), CPoint(5, 3 + 36), 2 },
        { new CAnnotationWell, CPoint(3 + 24 + 3, 3 + 54 + 3), 7 },
    };
    for (const auto& pick : picks) {
        Owner owner;
        pick.pWell->OpenUnder(&dlg.m_button, &owner);
        HWND h = pick.pWell->m_hWnd;
        Send(h, WM_MOUSEMOVE, pick.ptHot.x, pick.ptHot.y);
        Send(h, WM_LBUTTONDOWN, pick.ptHot.x, pick.ptHot.y);
        EXPECT_FALSE(::IsWindow(h));
        ASSERT_EQ(1u, owner.m_values.size());
        EXPECT_EQ(pick.dwValue, owner.m_values[0]);
    }
}

TEST(Wells, ABorderClickTakesTheLastHotCellAndNoHotCellChoosesNothing)
{
    PickerDialog dlg;
    Owner owner;
    CColorWell* pWell = new CColorWell;
    pWell->OpenUnder(&dlg.m_button, &owner);
    HWND h = pWell->m_hWnd;
    Send(h, WM_MOUSEMOVE, 3 + 36 + 1, 3 + 18 + 1);   // cell 6
    EXPECT_EQ(6, pWell->m_nHotCell);
    EXPECT_EQ(BLACK, PixelOf(h, 4 + 36 - 1, 4 + 18 - 1));
    Send(h, WM_MOUSEMOVE, 3 + 54 + 1, 3 + 18 + 1);   // cell 7: the frame moves
    EXPECT_EQ(Face(), PixelOf(h, 4 + 36 - 1, 4 + 18 - 1));
    Send(h, WM_MOUSEMOVE, 76, 1);                    // the border: outside the grid
    EXPECT_EQ(7, pWell->m_nHotCell);
    Send(h, WM_LBUTTONDOWN, 76, 1);
    EXPECT_FALSE(::IsWindow(h));
    ASSERT_EQ(1u, owner.m_values.size());
    EXPECT_EQ(0x008080u, owner.m_values[0]);

    CAnnotationWell* pMarks = new CAnnotationWell;
    pMarks->OpenUnder(&dlg.m_button, &owner);
    h = pMarks->m_hWnd;
    Send(h, WM_MOUSEMOVE, 1, 1);
    Send(h, WM_LBUTTONDOWN, 1, 1);
    EXPECT_FALSE(::IsWindow(h));
    EXPECT_EQ(1u, owner.m_values.size());
}

TEST(Wells, HundredsOfWellsLeaveNoGdiObjects)
{
    PickerDialog dlg;
    Owner owner;
    const LONG nBefore = CGdiObject::GetLiveCount();
    for (int i = 0; i < 300; i++) {
        CPickerWell* pWell = i % 3 == 0 ? (CPickerWell*)new CColorWell
                           : i % 3 == 1 ? (CPickerWell*)new CLineTypeWell(i % 2) : (CPickerWell*)new CAnnotationWell;
        pWell->OpenUnder(&dlg.m_button, &owner);
        HWND h = pWell->m_hWnd;
        ::UpdateWindow(h);
        Send(h, WM_MOUSEMOVE, 10, 10);
        if (i % 2)
            Send(h, WM_LBUTTONDOWN, 10, 10);
        else
            ::SetFocus(dlg.m_hWnd);
        ASSERT_FALSE(::IsWindow(h));
        HWND hPalette = dlg.MakePalette(PW, PH)->m_hWnd;
        ::SendMessageA(hPalette, WM_LBUTTONDOWN, 0, MAKELPARAM(13, 10));
        ::DestroyWindow(hPalette);
    }
    EXPECT_EQ(150u, owner.m_values.size());
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
}

namespace {

// Ends the colour dialog from inside its loop: types red, green and blue
// and presses OK, or presses Cancel. Notes whether the well stood hidden.
struct DialogScript { HWND hWell; bool bOk, bWellHidden, bDone; } s_script;

void CALLBACK RunDialog(HWND, UINT, UINT_PTR nTimer, DWORD)
{
    HWND hDialog = FindVisibleDialog();
    if (hDialog == NULL)
        return;
    ::KillTimer(NULL, nTimer);
    s_script.bWellHidden = ::IsWindow(s_script.hWell) && !::IsWindowVisible(s_script.hWell);
    if (s_script.bOk) {
        ::SetDlgItemTextA(hDialog, 706, "10");
        ::SetDlgItemTextA(hDialog, 707, "20");
        ::SetDlgItemTextA(hDialog, 708, "30");
    }
    ::PostMessageA(hDialog, WM_COMMAND, s_script.bOk ? IDOK : IDCANCEL, 0);
    s_script.bDone = true;
}

} // namespace

TEST(Wells, TheOtherButtonChoosesInTheColourDialog)
{
    PickerDialog dlg;
    for (bool bOk : { true, false }) {
        Owner owner;
        CColorWell* pWell = new CColorWell;
        pWell->OpenUnder(&dlg.m_button, &owner);
        s_script = DialogScript{ pWell->m_hWnd, bOk, false, false };
        ::SetTimer(NULL, 0, 50, RunDialog);
        Send(s_script.hWell, WM_LBUTTONDOWN, 40, 106);   // in the button under the grid
        EXPECT_TRUE(s_script.bDone);
        EXPECT_TRUE(s_script.bWellHidden);   // and not closed by its lost focus
        EXPECT_FALSE(::IsWindow(s_script.hWell));
        EXPECT_EQ(bOk ? 1u : 0u, owner.m_values.size());
        if (bOk && !owner.m_values.empty()) {
            EXPECT_EQ(RGB(10, 20, 30), owner.m_values[0]);
        }
    }
}
