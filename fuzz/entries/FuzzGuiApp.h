#pragma once
// Pixmaps need a QGuiApplication. The fuzzers have none of their own; the
// test suite's QApplication serves when there is one.

class FuzzGuiApp {
public:
    static void Ensure();
};
