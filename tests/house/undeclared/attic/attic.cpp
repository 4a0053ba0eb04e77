#include "cellar/cellar.h"
#include "hall/hall.h"

int attic() { return hall() + cellar(); }
