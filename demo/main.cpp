// Placeholder until the graph draws.
int main() { return 0; }
