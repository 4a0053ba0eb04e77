#include "hall/hall.h"

#include "cellar/cellar.h"

int hall() { return cellar(); }
