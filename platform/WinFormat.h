#pragma once
// Printf conversion of a signed 64-bit integer (Windows writes it "%I64d").

#define SF_FMT_I64 "%lld"
#define SF_WFMT_I64 L"%lld"
