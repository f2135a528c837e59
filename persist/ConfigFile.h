// The configuration file "ZPXGraph.cfg" beside the library: a compound file
// whose one stream "Contents" holds the 16 rotating line colours as
// CLineColor records, read when the library is loaded into a process and
// written when it is unloaded, if the process made a graph.
#pragma once

#include "afx/afx.h"
#include "persist/LineColor.h"
#include <objidl.h>

// The file's path, in the directory of the library's own module file, into
// a buffer of MAX_PATH bytes; FALSE when the module has no usable name.
BOOL GetGraphConfigPath(LPSTR pszPath);

// The file over the process-wide table; 1 when the whole table was read.
// A file that cannot be read, or that ends or goes wrong within a record,
// leaves that record and those after it at their defaults.
BOOL LoadGraphConfig();
// The table into the file, replacing it; 1 when written or when no graph was
// made in this process (the file is then left alone).
BOOL SaveGraphConfig();

// The 16 records of the "Contents" stream of an open storage, over pTable,
// and into a new "Contents" stream. A record is taken only when it is whole
// and sound: line style 0 to 5, mark 0 to 9, width 1 to 5, a colour without
// a high byte. Reading stops at the first record that is not, with E_FAIL.
AFX_EXT_API HRESULT AFXAPI ReadGraphConfig(IStorage* pStorage, CLineColor* pTable);
AFX_EXT_API HRESULT AFXAPI WriteGraphConfig(IStorage* pStorage, CLineColor* pTable);
