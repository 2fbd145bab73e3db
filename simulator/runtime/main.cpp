// The program zelhost.
int main() { return 0; }
