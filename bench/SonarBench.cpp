// Filled in by the sonar work in progress.
int main() { return 0; }
