#include "EmbeddedSamples.h"

#include "qrc_mvxIso15745Xml.cpp" // NOLINT(bugprone-suspicious-include): made to be compiled here
