// The program zelto-tv.
int main() { return 0; }
