#include "ICIso15745.h"

#include "CIso15745Impl.h"

// Out of line, so that the virtual table exists once, in the library.
ICIso15745::~ICIso15745() = default;

ICIso15745* ICIso15745::create()
{
    return new CIso15745Impl;
}
