#pragma once
// One entry per fuzz target. Each takes any bytes, returns 0 and must
// neither crash, hang nor leak; a broken invariant aborts with a message.
// The fuzzers call them, and the test suite replays the stored inputs.

#include <cstddef>
#include <cstdint>

// Video window layout text; an optional second line "width height" resizes.
int FuzzLayout(const uint8_t* data, size_t size);
// "Lang_en.xml" beside the program, then lookups.
int FuzzDictionary(const uint8_t* data, size_t size);
// "Language.xml" beside the program.
int FuzzLanguageChoice(const uint8_t* data, size_t size);
// "config.xml" loaded into a store of every record type, saved and loaded again.
int FuzzSettings(const uint8_t* data, size_t size);
// "config.xml" in its coded form; the bytes also go through a coded round trip.
int FuzzCodedSettings(const uint8_t* data, size_t size);
// Byte 0 picks one byte or four per character, bytes 1 and 2 the length
// limit; the rest is the text. Also the code page conversions of the bytes.
int FuzzWideDigits(const uint8_t* data, size_t size);
// Lines of UTF-8, one per field of a window skin record, in its order.
int FuzzSkinStrings(const uint8_t* data, size_t size);
// A clip file, opened and decoded for a bounded number of frames.
int FuzzClip(const uint8_t* data, size_t size);
// A site file of tallix-plan, read and summed in both areas.
int FuzzSiteFile(const uint8_t* data, size_t size);
