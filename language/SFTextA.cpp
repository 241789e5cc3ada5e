#include "language/SFTextA.h"

#include "platform/WinCodePage.h"

CSFTextA::CSFTextA(const wchar_t* text, unsigned int codePage) : CSFTextA(text, -1, codePage)
{
}

CSFTextA::CSFTextA(const wchar_t* text, int length, unsigned int codePage)
    : CSFConvertedText([=](char* out, int size) {
          return text ? WideCharToMultiByte(codePage, 0, text, length, out, size, nullptr, nullptr)
                      : 0;
      })
{
}
