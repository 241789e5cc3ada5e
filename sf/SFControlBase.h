#pragma once
// What every abstract control holds: its handler, first, and its id, -1
// until Create. The destructor takes the first slot; each control's own
// operations follow it.

template <class Handler>
class CSFControlBase {
public:
    explicit CSFControlBase(Handler* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1))
    {
    }
    CSFControlBase(const CSFControlBase&) = default;
    CSFControlBase& operator=(const CSFControlBase&) = default;
    virtual ~CSFControlBase() {}

protected:
    Handler* m_pHandler;
    unsigned int m_nID;
};
