#pragma once
// Style sheets from disk are text anyone can edit: Qt takes lengths of any
// size from them and fails in its painters on some (a border of 2^31 pixels
// crashes it), or sizes windows by them.

#include <QString>

// The sheet with every length in its declarations brought down to limit
// pixels (em and ex to limit / 16); selectors, strings, url(...) and
// comments, and everything else of the text, are kept as they are.
QString SFBoundStyleSheetLengths(const QString& sheet, int limit);
