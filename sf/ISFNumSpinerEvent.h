#pragma once

class ISFNumSpinerEvent {
public:
    virtual ~ISFNumSpinerEvent() {}
    // sender is the CSFNumSpiner*.
    virtual void OnCurrentNumChanged(unsigned int /*id*/, int /*value*/, void* /*sender*/,
                                     int /*reserved*/)
    {
    }
};
