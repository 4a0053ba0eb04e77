#include "cellar/cellar.h"

int cellar() { return 1; }
