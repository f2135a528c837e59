// The demo's second and third graphs: one filled from an archive the first
// graph wrote, one that took the first graph's look through the registry.
#pragma once

#include "graph/Graph.h"

// Writes source to the archive file "graphdemo.archive" beside the demo and
// reads it into target (settings, reference lines, floating labels). 0 on
// success.
int FillFromArchive(CGraph& source, CGraph& target);

// Saves source's settings under HKEY_CURRENT_USER\Software\ZPXGraph Demo and
// loads them into target. 0 on success.
int TakeLookThroughRegistry(CGraph& source, CGraph& target);
