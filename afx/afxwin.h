// The windowing part of the class-library layer in one include: value types,
// GDI objects and device contexts, windows with message maps, menus, the module
// frame and synchronisation.
#pragma once

#include "afx/afx.h"
#include "afx/afxtypes.h"
#include "afx/afxgdi.h"
#include "afx/afxwnd.h"
#include "afx/afxmenu.h"
#include "afx/afxmodule.h"
#include "afx/afxmt.h"
