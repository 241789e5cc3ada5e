#include "language/SFTextW.h"

#include "platform/WinCodePage.h"

CSFTextW::CSFTextW(const char* text, unsigned int codePage) : CSFTextW(text, -1, codePage)
{
}

CSFTextW::CSFTextW(const char* text, int length, unsigned int codePage)
    : CSFConvertedText([=](wchar_t* out, int size) {
          return text ? MultiByteToWideChar(codePage, 0, text, length, out, size) : 0;
      })
{
}
