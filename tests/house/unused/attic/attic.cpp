int attic() { return 2; }
