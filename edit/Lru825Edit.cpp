#include "edit/Lru825Edit.h"
