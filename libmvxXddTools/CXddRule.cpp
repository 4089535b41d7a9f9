#include "CXddRule.h"

CXddRule::CXddRule() = default;
