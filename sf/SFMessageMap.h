#pragma once
// Message maps: a handler lists which member runs for which control message.
//
// In the class:
//     class CMyDlg : public ISFDialogEvent, public ISFButtonEvent {
//         SF_DECLARE_MSGMAP()
//     public:
//         void OnApply();
//         void OnRowNotify(void* record, unsigned int id);
//     };
// In the source file:
//     SF_BEGIN_MSGMAP(CMyDlg)
//         SF_ON_COMMAND(3, OnApply)
//         SF_MAP_ENTRY(SF_MSG_NOTIFY, 2, 10, 20, SF_SIG_NOTIFY, OnRowNotify)
//     SF_END_MSGMAP()

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

class CSFEventBase;

// Message words are pointer-sized: a notification passes the address of its
// record in wParam.
typedef std::uintptr_t SF_WPARAM;
typedef std::intptr_t SF_LPARAM;

struct tagNMHDR {
    void* hwndFrom;
    std::uintptr_t idFrom;
    unsigned int code;
};
typedef tagNMHDR NMHDR;

constexpr unsigned int SF_MSG_NOTIFY = 78;
constexpr unsigned int SF_MSG_COMMAND = 273;
constexpr unsigned int SF_MSG_UI = 275;

constexpr unsigned int SF_SIG_END = 0;
constexpr unsigned int SF_SIG_VOID = 1;
constexpr unsigned int SF_SIG_NOTIFY = 2;
constexpr unsigned int SF_SIG_UIMSG = 3;

// Calls one member of the handler that owns the map, with the two message words.
typedef void (*SF_PMSG)(CSFEventBase* handler, SF_WPARAM wParam, SF_LPARAM lParam);

struct SF_MSGMAP_ENTRY {
    unsigned int nMessage;
    unsigned int nCode;
    unsigned int nID;
    unsigned int nLastID;
    unsigned int nSig;
    unsigned int nReserved;
    SF_PMSG pfn;
};

struct SF_MSGMAP {
    const SF_MSGMAP_ENTRY* lpEntries;
};

// First entry of the table with this message and code whose id range holds id;
// null at the end entry. A null table holds nothing.
const SF_MSGMAP_ENTRY* SFFindMessageEntry(const SF_MSGMAP_ENTRY* entries, unsigned int message,
                                          unsigned int code, unsigned int id);
const SF_MSGMAP_ENTRY* SFFindMessageEntry(const SF_MSGMAP* map, unsigned int message,
                                          unsigned int code, unsigned int id);

// The cached, -1 terminated list of the ids of the UI message entries; null
// when the map has none. Built once into cache.
int* SFCollectMessageIDs(const SF_MSGMAP* map, int*& cache);

namespace sf_detail {

template <class M>
struct MemberTraits;

template <class C, class R, class... A>
struct MemberTraits<R (C::*)(A...)> {
    static constexpr std::size_t arity = sizeof...(A);
    template <std::size_t N>
    using Arg = std::tuple_element_t<N, std::tuple<A...>>;
};

template <class C, class R, class... A>
struct MemberTraits<R (C::*)(A...) const> : MemberTraits<R (C::*)(A...)> {
};

// A message word as the member's parameter type: pointers by address, numbers by value.
template <class P, class W>
P FromWord(W word)
{
    using T = std::remove_cv_t<std::remove_reference_t<P>>;
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(static_cast<std::uintptr_t>(word));
    else
        return static_cast<T>(word);
}

// The handler's own class is named here, so the cast from the CSFEventBase
// subobject applies the offset of that base inside the handler.
template <class T, unsigned int Sig, auto Member>
void Invoke(CSFEventBase* handler, SF_WPARAM wParam, SF_LPARAM lParam)
{
    using Traits = MemberTraits<decltype(Member)>;
    T* self = static_cast<T*>(handler);
    if constexpr (Sig == SF_SIG_VOID) {
        static_assert(Traits::arity == 0, "signature 1 takes a member without arguments");
        (void)wParam;
        (void)lParam;
        (self->*Member)();
    } else {
        static_assert(Sig == SF_SIG_NOTIFY || Sig == SF_SIG_UIMSG, "signature must be 1, 2 or 3");
        static_assert(Traits::arity == 2, "signatures 2 and 3 take a member of two words");
        (self->*Member)(FromWord<typename Traits::template Arg<0>>(wParam),
                        FromWord<typename Traits::template Arg<1>>(lParam));
    }
}

} // namespace sf_detail

// Declares the two map operations inside a handler class. Leaves access public.
#define SF_DECLARE_MSGMAP()                            \
public:                                                \
    const SF_MSGMAP* GetSFMessageMap() const override; \
    int* GetThisMessageIDs() override;

#define SF_BEGIN_MSGMAP(theClass)                                               \
    int* theClass::GetThisMessageIDs()                                          \
    {                                                                           \
        return SFCollectMessageIDs(theClass::GetSFMessageMap(), m_pMessageIDs); \
    }                                                                           \
    const SF_MSGMAP* theClass::GetSFMessageMap() const                          \
    {                                                                           \
        typedef theClass ThisClass;                                             \
        static_assert(std::is_base_of<CSFEventBase, ThisClass>::value,          \
                      "a message map belongs to a window handler");             \
        static const SF_MSGMAP_ENTRY s_entries[] = {

// One entry: message, code, first and last id (inclusive), signature, member.
#define SF_MAP_ENTRY(message, code, firstId, lastId, sig, member) \
    { (message),                                                  \
      (code),                                                     \
      (firstId),                                                  \
      (lastId),                                                   \
      (sig),                                                      \
      0,                                                          \
      &sf_detail::Invoke<ThisClass, (sig), &ThisClass::member> },

#define SF_ON_COMMAND(id, member) SF_MAP_ENTRY(SF_MSG_COMMAND, 0, (id), (id), SF_SIG_VOID, member)
#define SF_ON_COMMAND_RANGE(firstId, lastId, member) \
    SF_MAP_ENTRY(SF_MSG_COMMAND, 0, (firstId), (lastId), SF_SIG_VOID, member)
#define SF_ON_NOTIFY(code, id, member) \
    SF_MAP_ENTRY(SF_MSG_NOTIFY, (code), (id), (id), SF_SIG_NOTIFY, member)
#define SF_ON_UIMSG(id, member) SF_MAP_ENTRY(SF_MSG_UI, SF_MSG_UI, (id), (id), SF_SIG_UIMSG, member)

#define SF_END_MSGMAP()                           \
    {                                             \
        0, 0, 0, 0, SF_SIG_END, 0, nullptr        \
    }                                             \
    }                                             \
    ;                                             \
    static const SF_MSGMAP s_map = { s_entries }; \
    return &s_map;                                \
    }
