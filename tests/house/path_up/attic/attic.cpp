#include "attic/attic.h"

int attic() { return 2; }
