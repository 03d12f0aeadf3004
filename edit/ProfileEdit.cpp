#include "edit/ProfileEdit.h"
