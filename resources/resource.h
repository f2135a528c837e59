/*
 * ZPXGraph resource, command, control and context help identifiers.
 *
 * Read by the C++ sources and by the resource compiler alike: plain
 * #defines only. The satellite resource libraries carry the same numbers.
 */
#ifndef ZPXGRAPH_RESOURCE_H
#define ZPXGRAPH_RESOURCE_H

/* ---- String table ----------------------------------------------------- */

#define IDS_LOCK                    14500   /* cross hair sub-menu: lock the cross hair */
#define IDS_UNLOCK                  14501   /* cross hair sub-menu: unlock the cross hair */
#define IDS_LINE_NAME_FORMAT        14502   /* printf pattern of a default line colour name, takes the number */
#define IDS_ENTER_ALL_VALUES        14503   /* bad input message: not all values entered (not loaded) */
#define IDS_VALUE_TOO_LARGE         14504   /* bad input message: value too large (not loaded) */
#define IDS_ENTER_VALID_NUMBER      14505   /* bad input message: invalid number, please correct (not loaded) */
#define IDS_SHOW_DEFAULTS           14506   /* line colours page: switch button text while the series list shows */
#define IDS_SHOW_DATA               14507   /* line colours page: switch button text while the table list shows */
#define IDS_DATA_LIST_LABEL         14508   /* line colours page: list heading over the series list */
#define IDS_DEFAULTS_LIST_LABEL     14509   /* line colours page: list heading over the colour table list */
#define IDS_OTHER_COLOR             14510   /* colour well: text of the button that opens the colour dialog */
#define IDS_GRID_MAJOR_MINOR        14511   /* settings page: grid list entry for major and minor tics */
#define IDS_CROSSHAIR_MENU          14512   /* graph menu: caption of the cross hair sub-menu */
#define IDS_LABEL_TEXT              14513   /* initial text of a new floating label */
#define IDS_FONT_FACE               14514   /* face name of the graph's and the labels' default font */
#define IDS_GRAPH_PROPERTIES        14515   /* title of the graph's property sheet when none is given */
#define IDS_LEGEND_PROPERTIES       14516   /* title of the legend's property sheet */

/* ---- Messages of the class-library layer's data exchange ------------- */

#define AFX_IDP_PARSE_INT           0xF110  /* a field needs a whole number */
#define AFX_IDP_PARSE_INT_RANGE     0xF111  /* a whole number between %1 and %2 */
#define AFX_IDP_PARSE_REAL          0xF113  /* a field needs a number */
#define AFX_IDP_PARSE_REAL_RANGE    0xF114  /* a number between %1 and %2 */

/* ---- Cursor and bitmaps ----------------------------------------------- */

#define IDC_PLOT_CURSOR             14600   /* cross cursor over the plot area, hot spot (12, 12) */
#define IDB_LEGEND_PANEL            14601   /* legend options: picture of a legend panel with one entry */
#define IDB_GRAPH_FULL              14602   /* legend options: graph over the whole picture (auto-hide on) */
#define IDB_GRAPH_UPPER             14603   /* legend options: graph in the upper part, room for the legend */

/* ---- Menus ------------------------------------------------------------ */

#define IDR_GRAPH_MENU              14604   /* context menu of the graph */
#define IDR_LABEL_MENU              14605   /* context menu of a floating label's editor */
#define IDR_LEGEND_MENU             14606   /* context menu of the legend */

/* ---- Commands --------------------------------------------------------- */

#define ID_GRAPH_PROPERTIES         14700   /* graph menu: open the property sheet */
/* 14701 is left free. */
#define ID_GRAPH_CROSSHAIR_SHOW     14702   /* graph menu: show or hide the cross hair */
#define ID_GRAPH_CROSSHAIR_LOCK     14703   /* graph menu: lock or unlock the cross hair */
#define ID_GRAPH_COPY               14704   /* graph menu: copy the picture; label menu: copy the text */
#define ID_GRAPH_RADAR              14705   /* graph menu: scale the axes to the data */
#define ID_GRAPH_ADD_LABEL          14706   /* graph menu: add a floating label at the menu's point */
#define ID_GRAPH_LEGEND             14707   /* graph menu: show or hide the legend */
#define ID_GRAPH_LEGEND_TOP         14708   /* legend menu: dock at the top */
#define ID_GRAPH_LEGEND_BOTTOM      14709   /* legend menu: dock at the bottom */
#define ID_GRAPH_LEGEND_LEFT        14710   /* legend menu: dock at the left */
#define ID_GRAPH_LEGEND_RIGHT       14711   /* legend menu: dock at the right */
#define ID_GRAPH_LEGEND_PROPERTIES  14712   /* legend menu: open the legend's property sheet */
#define ID_GRAPH_LABEL_PASTE        14713   /* label menu: paste */
#define ID_GRAPH_LABEL_DELETE       14714   /* label menu: delete the label */
#define ID_GRAPH_LABEL_SELECT_ALL   14715   /* label menu: select all text */
#define ID_GRAPH_LABEL_CUT          14716   /* label menu: cut */
#define ID_GRAPH_LABEL_COLOR        14717   /* label menu: choose the text colour */
#define ID_GRAPH_LABEL_FONT         14718   /* label menu: choose the font */

/* ---- Dialogs ---------------------------------------------------------- */

#define IDD_LIMITS_PAGE             14800   /* property page: axis limits and automatic scaling */
#define IDD_SETTINGS_PAGE           14801   /* property page: grid and tic marks */
#define IDD_LEGEND_OPTIONS          14802   /* legend's property page: auto-hide */
#define IDD_LINE_COLORS_PAGE        14803   /* property page: line colours, styles, marks, widths */
#define IDD_CUSTOM_COLOR_DIALOG     14804   /* colour dialog template for adding custom colours */
#define IDD_APPEARANCE_PAGE         14805   /* property page: font, colours, grid style, preview */

/* ---- Child windows of the graph --------------------------------------- */

#define IDC_LIMIT_EDIT_X_MIN        1046    /* inline limit editor: X minimum */
#define IDC_LIMIT_EDIT_X_MAX        1047    /* inline limit editor: X maximum */
#define IDC_LIMIT_EDIT_YLEFT_MAX    1048    /* inline limit editor: left Y maximum */
#define IDC_LIMIT_EDIT_YLEFT_MIN    1049    /* inline limit editor: left Y minimum */
#define IDC_LIMIT_EDIT_YRIGHT_MAX   1050    /* inline limit editor: right Y maximum */
#define IDC_LIMIT_EDIT_YRIGHT_MIN   1051    /* inline limit editor: right Y minimum */

#define IDC_CROSSHAIR_X             15000   /* cross hair read-out of X */
#define IDC_CROSSHAIR_YLEFT         15001   /* cross hair read-out of the left Y axis */
#define IDC_CROSSHAIR_YRIGHT        15002   /* cross hair read-out of the right Y axis */
#define IDC_MARKER_VALUE_TIP        15000   /* marker line value tip; shares its id with the X read-out */

#define IDC_FLOATING_LABEL_BASE     2001    /* start of the label counter, raised before each new label */
#define IDC_FIRST_FLOATING_LABEL    2002    /* id of the first floating label's editor */

/* ---- Limits page (IDD_LIMITS_PAGE) ------------------------------------ */

#define IDC_X_MAX                   1008    /* edit: X maximum */
#define IDC_X_MIN                   1009    /* edit: X minimum */
#define IDC_YLEFT_MAX               1010    /* edit: left Y maximum */
#define IDC_YLEFT_MIN               1011    /* edit: left Y minimum */
#define IDC_YRIGHT_MAX              1012    /* edit: right Y maximum */
#define IDC_YRIGHT_MIN              1013    /* edit: right Y minimum */
#define IDC_RADAR_X                 1014    /* check box: automatic scaling acts on X */
#define IDC_RADAR_Y                 1016    /* check box: automatic scaling acts on Y */
#define IDC_RADAR_X_PERCENT         1018    /* edit: X margin of automatic scaling, percent */
#define IDC_RADAR_Y_PERCENT         1021    /* edit: Y margin of automatic scaling, percent */
#define IDC_YRIGHT_HEADING          1043    /* label: heading of the right axis column */
#define IDC_YRIGHT_MAX_LABEL        1044    /* label of the right Y maximum */
#define IDC_YRIGHT_MIN_LABEL        1045    /* label of the right Y minimum */
#define IDC_X_MIN_LABEL             1052    /* label of the X minimum */
#define IDC_X_MAX_LABEL             1053    /* label of the X maximum */
#define IDC_YLEFT_MIN_LABEL         1054    /* label of the left Y minimum */
#define IDC_YLEFT_MAX_LABEL         1055    /* label of the left Y maximum */
#define IDC_RADAR_X_PERCENT_LABEL   1056    /* label of the X margin percent */
#define IDC_RADAR_Y_PERCENT_LABEL   1057    /* label of the Y margin percent */
#define IDC_YLEFT_HEADING           1058    /* label: heading of the left axis column */
#define IDC_X_AXIS_GROUP            1059    /* group box of the X axis */
#define IDC_Y_AXIS_GROUP            1060    /* group box of the Y axes */
#define IDC_RADAR_GROUP             1061    /* group box of the automatic scaling controls */

/* ---- Settings page (IDD_SETTINGS_PAGE) -------------------------------- */

#define IDC_GRID_TYPE               1000    /* drop-down list: grid none, major, major and minor */
#define IDC_MAJOR_TICS              1001    /* check box: major tic marks */
#define IDC_MINOR_TICS              1002    /* check box: minor tic marks */
#define IDC_GRID_TYPE_LABEL         1062    /* label of the grid list */

/* ---- Line colours page (IDD_LINE_COLORS_PAGE) ------------------------- */

#define IDC_SERIES_LIST             1003    /* owner-drawn list: the series, sorted */
#define IDC_TABLE_LIST              1004    /* owner-drawn list: the colour table entries */
#define IDC_CUSTOM_PALETTE          1005    /* palette window: the 16 custom colours */
#define IDC_LINE_STYLE              1006    /* owner-drawn well button: line style */
#define IDC_ANNOTATION              1007    /* owner-drawn well button: annotation mark */
#define IDC_LIST_LABEL              1022    /* label over the list; changes with the list shown */
#define IDC_ANNOTATION_LABEL        1023    /* label of the annotation button */
#define IDC_SWITCH_LIST             1024    /* button: switch between series and table list */
#define IDC_DEFINE_CUSTOM_COLORS    1025    /* button: open the custom colour dialog */
#define IDC_BASE_PALETTE            1026    /* palette window: the 48 base colours */
#define IDC_LINE_WIDTH              1036    /* edit: line width, one digit */
#define IDC_LINE_WIDTH_SPIN         1042    /* up-down control of the line width, 1 to 5 */
#define IDC_BASE_PALETTE_LABEL      1064    /* label of the base colours */
#define IDC_CUSTOM_PALETTE_LABEL    1065    /* label of the custom colours */
#define IDC_LINE_WIDTH_LABEL        1066    /* label of the line width */
#define IDC_LINE_STYLE_LABEL        1067    /* label of the line style button */
/* The page also holds hidden, unused controls 1027, 1028, 1030 and 1031. */

/* ---- Appearance page (IDD_APPEARANCE_PAGE) ---------------------------- */

#define IDC_FONT_FAMILY             1027    /* drop-down list: font family, sorted */
#define IDC_FONT_SIZE               1028    /* drop-down list: font size in points */
#define IDC_TEXT_COLOR              1029    /* owner-drawn well button: text colour */
#define IDC_BOLD                    1030    /* push-like check button: bold */
#define IDC_ITALIC                  1031    /* push-like check button: italic */
#define IDC_ITEM                    1032    /* drop-down list: text, background, or grid */
#define IDC_ITEM_COLOR              1033    /* owner-drawn well button: colour of the item */
#define IDC_GRID_STYLE              1034    /* owner-drawn well button: pen style of the grid */
#define IDC_PREVIEW_FRAME           1035    /* hidden frame that marks the preview's place */
#define IDC_FONT_FAMILY_LABEL       1037    /* label of the font family */
#define IDC_FONT_SIZE_LABEL         1038    /* label of the font size */
#define IDC_TEXT_COLOR_LABEL        1039    /* label of the text colour */
#define IDC_ITEM_COLOR_LABEL        1040    /* label of the item colour */
#define IDC_GRID_STYLE_LABEL        1041    /* label of the grid pen style */
#define IDC_ITEM_LABEL              1063    /* label of the item list */

/* ---- Legend options page (IDD_LEGEND_OPTIONS) ------------------------- */

#define IDC_AUTO_HIDE               1015    /* check box: legend hides itself */
#define IDC_GRAPH_PICTURE           1017    /* static bitmap: picture of a graph */
#define IDC_LEGEND_PICTURE          1020    /* static bitmap: picture of a legend below the graph */

/* ---- Custom colour dialog (IDD_CUSTOM_COLOR_DIALOG) ------------------- */
/* Apart from IDC_ADD_CUSTOM_COLOR these are the ids that the system's
   colour dialog expects in a template. */

#define IDC_ADD_CUSTOM_COLOR        14807   /* button: add the colour to the custom colours */
#define IDC_COLORDLG_LUM_BAR        702     /* frame: luminance bar */
#define IDC_COLORDLG_HUE            703     /* edit: hue */
#define IDC_COLORDLG_SAT            704     /* edit: saturation */
#define IDC_COLORDLG_LUM            705     /* edit: luminance */
#define IDC_COLORDLG_RED            706     /* edit: red */
#define IDC_COLORDLG_GREEN          707     /* edit: green */
#define IDC_COLORDLG_BLUE           708     /* edit: blue */
#define IDC_COLORDLG_SAMPLE         709     /* frame: sample of the colour */
#define IDC_COLORDLG_FIELD          710     /* frame: colour field, disabled */
#define IDC_COLORDLG_ADD            712     /* button: the system's add to custom colours, out of sight */
#define IDC_COLORDLG_SOLID          713     /* button: solid colour, out of sight */
#define IDC_COLORDLG_DEFINE         719     /* button: define custom colours, out of sight */
#define IDC_COLORDLG_BASIC_BOX      720     /* frame: basic colours, out of sight, disabled */
#define IDC_COLORDLG_CUSTOM_BOX     721     /* frame: custom colours, out of sight, disabled */
#define IDC_COLORDLG_HUE_LABEL      723     /* label of the hue */
#define IDC_COLORDLG_SAT_LABEL      724     /* label of the saturation */
#define IDC_COLORDLG_LUM_LABEL      725     /* label of the luminance */
#define IDC_COLORDLG_RED_LABEL      726     /* label of red */
#define IDC_COLORDLG_GREEN_LABEL    727     /* label of green */
#define IDC_COLORDLG_BLUE_LABEL     728     /* label of blue */
#define IDC_COLORDLG_HELP           1038    /* button: help, out of sight */

/* ---- Context help ids of the page controls ---------------------------- */

#define IDH_X_MIN                   5000    /* limits page: X minimum and its label */
#define IDH_X_MAX                   5001    /* limits page: X maximum and its label */
#define IDH_YLEFT_MIN               5002    /* limits page: left Y minimum and its label */
#define IDH_YLEFT_MAX               5003    /* limits page: left Y maximum and its label */
#define IDH_YRIGHT_MAX              5004    /* limits page: right Y maximum and its label */
#define IDH_YRIGHT_MIN              5005    /* limits page: right Y minimum and its label */
#define IDH_RADAR_X                 5006    /* limits page: automatic scaling of X */
#define IDH_RADAR_Y                 5007    /* limits page: automatic scaling of Y */
#define IDH_RADAR_X_PERCENT         5008    /* limits page: X margin percent and its label */
#define IDH_RADAR_Y_PERCENT         5009    /* limits page: Y margin percent and its label */
#define IDH_YLEFT_HEADING           5010    /* limits page: heading of the left axis column */
#define IDH_YRIGHT_HEADING          5011    /* limits page: heading of the right axis column */
#define IDH_GRID_TYPE               5012    /* settings page: grid list and its label */
#define IDH_MAJOR_TICS              5013    /* settings page: major tic marks */
#define IDH_MINOR_TICS              5014    /* settings page: minor tic marks */
#define IDH_PREVIEW                 5015    /* appearance page: preview frame */
#define IDH_ITEM                    5016    /* appearance page: item list and its label */
#define IDH_ITEM_COLOR              5017    /* appearance page: item colour and its label */
#define IDH_GRID_STYLE              5018    /* appearance page: grid pen style and its label */
#define IDH_FONT_FAMILY             5019    /* appearance page: font family and its label */
#define IDH_FONT_SIZE               5020    /* appearance page: font size and its label */
#define IDH_TEXT_COLOR              5021    /* appearance page: text colour and its label */
#define IDH_BOLD                    5022    /* appearance page: bold */
#define IDH_ITALIC                  5023    /* appearance page: italic */
#define IDH_SERIES_LIST             5024    /* line colours page: series list and its label */
#define IDH_BASE_PALETTE            5025    /* line colours page: base colours and their label */
#define IDH_CUSTOM_PALETTE          5026    /* line colours page: custom colours and their label */
#define IDH_DEFINE_CUSTOM_COLORS    5027    /* line colours page: custom colour dialog button */
#define IDH_SWITCH_LIST             5028    /* line colours page: list switch button */
#define IDH_LINE_WIDTH              5029    /* line colours page: width edit, spin and label */
#define IDH_LINE_STYLE              5030    /* line colours page: line style and its label */
#define IDH_ANNOTATION              5031    /* line colours page: annotation and its label */
#define IDH_AUTO_HIDE               5032    /* legend options: auto-hide */
#define IDH_LEGEND_PICTURES         5033    /* legend options: the two pictures */

#endif /* ZPXGRAPH_RESOURCE_H */
