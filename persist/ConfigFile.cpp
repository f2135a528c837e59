// The configuration file beside the library that keeps the rotating line
// colours between runs.
#include "graph/Globals.h"

BOOL LoadDefaultLineColors()
{
    // Not read yet: the built-in table stands.
    return FALSE;
}

BOOL SaveDefaultLineColors()
{
    return FALSE;
}
