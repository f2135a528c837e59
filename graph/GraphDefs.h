// Constants of the graph interface: status values, the style word, the mode
// word, notification bits and scaling flags. One constant per line.
#pragma once

// ---- Status values of the graph operations --------------------------------
#define GRAPH_OK                 1    // done
#define GRAPH_BADARG            -3    // an argument is out of range
#define GRAPH_NOTAVAILABLE      -4    // does not apply in the graph's present configuration
#define GRAPH_NOSERIES          -5    // no series of that name
#define GRAPH_NOMEMORY          -6    // memory or a bitmap could not be had
#define GRAPH_MARKEREXISTS      -7    // the graph has a marker line already
#define GRAPH_NOMARKER          -8    // the graph has no marker line
#define GRAPH_WRONGCOLORMODE    -9    // the call applies in colour mode 2 only
#define GRAPH_NOCOLOR          -10    // no entry of the colour table has that name
#define GRAPH_NOAREA           -11    // the series has no area of that identifier
#define GRAPH_NOCUSTOMCOLORS   -12    // the host has set no custom colours
#define GRAPH_SERIESEXISTS     -13    // a series of that name exists already
#define GRAPH_NOREGION         -14    // the series has no highlight region of that identifier
#define GRAPH_NOREFLINE        -15    // no reference line of that name

// ---- Style word given to CreateGraph (m_dwStyle) ---------------------------
#define GS_RESERVED1          0x01    // part of the default; nothing tests it
#define GS_RIGHTAXIS          0x02    // the layout keeps room for numbers right of the plot
#define GS_NOWINDOW           0x04    // no window and no legend: drawing only through Plot
#define GS_NOPLOT             0x08    // Plot draws nothing, scaling ignores the series
#define GS_XLIMITORDER        0x10    // limit editors keep the X minimum below the maximum
#define GS_YLIMITORDER        0x20    // the same for both Y axes
#define GS_RESERVED40         0x40    // part of the default; nothing tests it

// ---- Mode word of the mouse tools (m_dwState) ------------------------------
#define GST_CROSSHAIR            0x001  // the cross hair is shown
#define GST_CROSSHAIR_SUSPENDED  0x002  // the cross hair is taken down for a while
#define GST_CROSSHAIR_LOCKED     0x004  // the cross hair does not follow the mouse
#define GST_ZOOMING              0x010  // a rubber band is being dragged
#define GST_MARKER_ACTIVE        0x020  // the pointer has hold of a marker line
#define GST_LIMIT_EDIT           0x040  // an inline limit editor is open
#define GST_OVER_TRACKER         0x080  // the pointer is over the tracker of a label
#define GST_RADAR_DBLCLK         0x100  // a double click in the plot scales to the data

// ---- Notification mask bits and event codes --------------------------------
#define GN_LIMITS             0x0001  // limits changed by an editor or the limits page
#define GN_RESERVED2          0x0002  // never sent; takes part in the event gate
#define GN_MOUSEMOVE          0x0004  // WM_MOUSEMOVE
#define GN_LBUTTON            0x0008  // WM_LBUTTONDOWN and WM_LBUTTONUP
#define GN_RBUTTON            0x0010  // WM_RBUTTONDOWN and WM_RBUTTONUP
#define GN_CONTEXTMENU        0x0020  // the context menu was asked for
#define GN_RADAR              0x0040  // the axes were scaled to the data
#define GN_ZOOM               0x0080  // a zoom box became the new limits
#define GN_LINECOLORS         0x0100  // the line colours page was applied
#define GN_APPEARANCE         0x0200  // the appearance page was applied
#define GN_SETTINGS           0x0400  // the settings page was applied
#define GN_COPY               0x0800  // the graph was copied to the clipboard
#define GN_LDBLCLK            0x1000  // WM_LBUTTONDBLCLK
#define GN_EVENTS             0x0FC3  // the bits that open the gate of all event codes

// ---- Style of a marker line (AddMarkerLine) --------------------------------
#define ML_SINGLE             0x01    // one line
#define ML_DOUBLE             0x02    // two lines; wins over ML_SINGLE
#define ML_HORIZONTAL         0x08    // horizontal lines on a Y axis; else vertical, on a series
#define ML_RIGHTAXIS          0x10    // with ML_HORIZONTAL: on the right Y axis, else the left

// ---- Axes scaled to the data (radar flags) ---------------------------------
#define RADAR_X               0x01    // the X axis
#define RADAR_YLEFT           0x02    // the left Y axis
#define RADAR_YRIGHT          0x04    // the right Y axis

// ---- Axis flags of AddPlotData ---------------------------------------------
#define PLOT_YLEFT            0x01    // the series belongs to the left Y axis
#define PLOT_YRIGHT           0x02    // the series belongs to the right Y axis

// ---- Colour modes ----------------------------------------------------------
#define GRAPH_COLORS_FIXED      1     // a new series takes the caller's look
#define GRAPH_COLORS_ROTATING   2     // a new series takes the next entry of the table
#define GRAPH_COLORS_MATCHING   3     // a new series takes the table entry of its name

// ---- Grid word (m_dwGridType) ----------------------------------------------
#define GRID_NONE             0x01    // no grid: Plot does not draw one
#define GRID_MAJOR            0x02    // lines at major tics only (every second fixed tic)
#define GRID_MINOR            0x04    // lines at major and minor tics
#define GRID_VERTICAL         0x08    // vertical lines, at the X tics
#define GRID_HORIZONTAL       0x10    // horizontal lines, at the left Y tics
#define GRID_BOTHWAYS         0x18    // GRID_VERTICAL | GRID_HORIZONTAL

// ---- Placement of titles (PlaceStringHorizontal, PlaceStringVertical) ------
#define PLACE_AT_POINT        0x00    // at the x and y given
#define PLACE_HCENTER         0x01    // horizontal text centred across the plot
#define PLACE_RIGHTSIDE       0x02    // vertical text at the right side of the graph
#define PLACE_LEFTSIDE        0x04    // vertical text at the left side of the graph
#define PLACE_VCENTER         0x08    // vertical text centred along the plot

// ---- Sides of the legend ---------------------------------------------------
#define LEGEND_TOP            1       // above the graph
#define LEGEND_BOTTOM         2       // below the graph
#define LEGEND_LEFT           3       // left of the graph
#define LEGEND_RIGHT          4       // right of the graph (the default)

// ---- Slots of m_rectLimit: where each printed limit stands -----------------
#define LIMIT_XMIN            0       // m_dXMin, under the left end of the X axis
#define LIMIT_XMAX            1       // m_dXMax, under the right end
#define LIMIT_YLEFT_MAX       2       // m_dYMax[0], at the top of the left axis
#define LIMIT_YLEFT_MIN       3       // m_dYMin[0], at the bottom of the left axis
#define LIMIT_YRIGHT_MAX      4       // m_dYMax[1], at the top of the right axis
#define LIMIT_YRIGHT_MIN      5       // m_dYMin[1], at the bottom of the right axis
#define LIMIT_SLOTS           6       // entries of m_rectLimit

// ---- Line styles beyond the pen styles (PS_SOLID 0 to PS_DASHDOTDOT 4) -----
#define LINESTYLE_NONE        5       // the series draws no line, only its marks

// ---- Reference line flags (AddReferenceLine) -------------------------------
#define REFLINE_HORIZONTAL    0x00    // horizontal, at a value of the left Y axis
#define REFLINE_VERTICAL      0x01    // vertical, at an X value

// ---- Number formats of the axes (FormatNumber) ----------------------------
#define NUMFMT_MAX_WIDTH      64      // widest field width a number format may ask for
#define NUMFMT_MAX_PRECISION  32      // most digits of precision a number format may ask for
#define NUMFMT_BUFFER         256     // bytes of the buffer of one axis number (FormatLabelSuitably)

// ---- Entries of the context menu (m_lMenuConfig) ---------------------------
#define GM_COPY               0x01    // "copy" stays
#define GM_CROSSHAIR          0x02    // the cross hair's sub-menu stays
#define GM_LABEL              0x04    // "label" stays
#define GM_LEGEND             0x08    // "legend" stays
#define GM_RADAR              0x10    // "scale to the data" stays
#define GM_RESERVED20         0x20    // part of the default 63; nothing tests it

// ---- Shaded areas (AddAreaData) --------------------------------------------
#define AREA_BASE_CURVE       0       // the curve alone, closed from its last point back to its first
#define AREA_BASE_ZERO        1       // down to a base line at Y = 0.0; so does every other positive value
#define AREA_BASE_HUNDRED     2       // to a base line at Y = 100.0
#define AREA_BRUSH_SOLID      10      // a solid fill; any other brush style is a hatch index (HS_)
