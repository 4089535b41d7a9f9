#include "EmbeddedSamples.h"

#include "qrc_mvxIso15745Xml.cpp"
