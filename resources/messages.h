/*
 * ZPXGraph window messages: the graph window's private messages, the
 * pickers' messages to their dialog, and the marker line's messages to the
 * host. Plain #defines with literal numbers, so that no Windows header is
 * needed first. WM_APP is 0x8000, WM_USER 0x0400.
 */
#ifndef ZPXGRAPH_MESSAGES_H
#define ZPXGRAPH_MESSAGES_H

/* ---- Private messages of the graph window (wParam: label id) ---------- */

#define WM_GRAPH_DELETELABEL            0x83EF  /* WM_APP + 1007: label editor asks to delete its label */
#define WM_GRAPH_FINISHEDEDITINGLABEL   0x83F0  /* WM_APP + 1008: label editing ended; lParam non-zero ends the selection */
#define WM_GRAPH_SETLABELCOLOR          0x83F1  /* WM_APP + 1009: new label text colour in lParam */
#define WM_GRAPH_SETLABELFONT           0x83F2  /* WM_APP + 1010: new label font, LOGFONT* in lParam */
#define WM_GRAPH_LEGENDPOSCHANGE        0x83F3  /* WM_APP + 1011: the legend moved or resized; both arguments 0 */
#define WM_GRAPH_SETLABELPOINTSIZE      0x83F4  /* WM_APP + 1012: new label size in tenths of a point in lParam */

/* ---- Picker messages to the owning dialog (wParam: control id) -------- */

#define WM_PICKER_COLOR                 0x83E8  /* WM_APP + 1000: a colour was picked, COLORREF in lParam */
#define WM_PICKER_LINESTYLE             0x83E9  /* WM_APP + 1001: a line style was picked, pen style in lParam */
#define WM_PICKER_ANNOTATION            0x83EA  /* WM_APP + 1002: an annotation mark was picked, number in lParam */
#define WM_PICKER_ADDCUSTOMCOLOR        0x83EB  /* WM_APP + 1003: add a custom colour, COLORREF in lParam, wParam 0 */

/* ---- Marker line messages to the host window (both arguments 0) ------- */

#define WM_GRAPH_MARKER1MOVED           1324    /* WM_USER + 300: marker line 1 has a new position */
#define WM_GRAPH_MARKER2MOVED           1325    /* WM_USER + 301: marker line 2 has a new position */

#endif /* ZPXGRAPH_MESSAGES_H */
