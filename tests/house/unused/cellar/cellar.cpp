int cellar() { return 1; }
