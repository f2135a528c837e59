// The configuration file beside the library that keeps the rotating line
// colours between runs.
#include "graph/Globals.h"

BOOL LoadDefaultLineColors()
{
    // Placeholder: the file is read here; the built-in table stands.
    return FALSE;
}

BOOL SaveDefaultLineColors()
{
    // Placeholder: the file is written here.
    return FALSE;
}
