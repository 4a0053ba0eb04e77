#include "../attic/attic.h"

int cellar() { return attic(); }
