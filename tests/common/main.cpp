// Entry of every test program: loads the library's resources the way a host
// does, then runs the tests.
#include "gtest/gtest.h"
#include "graph/Graph.h"

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    InitializeZPXGraph();
    return RUN_ALL_TESTS();
}
