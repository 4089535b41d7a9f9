#include "CXddCommissioning.h"

CXddCommissioning::CXddCommissioning() = default;
