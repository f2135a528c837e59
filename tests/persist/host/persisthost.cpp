// A host process for the configuration file tests, run from a scratch copy
// of the library's folder. "none" loads the library and makes no graph;
// "graph <file>" makes one and writes the rotating colour table it sees into
// <file>, one entry a line: name, colour, line style, mark, width.
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include <stdio.h>
#include <string.h>

int main(int argc, char** argv)
{
    InitializeZPXGraph();
    if (argc < 3 || strcmp(argv[1], "graph") != 0)
        return 0;
    CGraph graph;
    FILE* pFile = fopen(argv[2], "w");
    if (pFile == NULL)
        return 1;
    const CLineColor* pTable = graph.m_pGraphPrv->m_pGraphColors;
    for (int i = 0; i < graph.m_pGraphPrv->m_nGraphColors; i++)
        fprintf(pFile, "%s|%06lX|%d|%d|%d\n", (LPCSTR)pTable[i].m_strName, pTable[i].m_crLine, pTable[i].m_nLineStyle,
                pTable[i].m_nAnnotate, pTable[i].m_nLineWidth);
    fclose(pFile);
    return 0;
}
