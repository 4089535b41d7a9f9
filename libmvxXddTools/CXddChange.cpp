#include "CXddChange.h"

CXddChange::CXddChange() = default;
