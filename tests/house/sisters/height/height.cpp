int height() { return 2; }
