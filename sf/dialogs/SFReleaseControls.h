#pragma once
// A handler's end of its window: each control it holds is destroyed and its
// pointer forgotten, in the order given, so that a late call finds nothing.

#include "sf/SFFactory.h"

template <class... Controls>
void SFReleaseControls(Controls*&... controls)
{
    ((SFDestroyControl(controls), controls = nullptr), ...);
}
