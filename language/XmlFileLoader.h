#pragma once

#include <string>

class TiXmlDocument;

// Loads an XML file into a TinyXML document, refusing input that would take
// the recursive parser too deep (TinyXML has no depth limit of its own).
class CXmlFileLoader {
public:
    static constexpr int kMaxDepth = 200;
    static constexpr long kMaxFileBytes = 16L << 20;

    // True when the file was read and parsed without error. On a refused or
    // unreadable file the document is left empty with its error flag set.
    static bool Load(TiXmlDocument& doc, const std::string& path);
    static bool Parse(TiXmlDocument& doc, const std::string& text);

    // Deepest element nesting of the text, counted leniently; returns as
    // soon as limit is passed.
    static int NestingDepth(const std::string& text, int limit);

    // TinyXML's parse of the text with terminators to spare: it steps over a
    // UTF-8 character by its lead byte's length, and a text cut inside one
    // would otherwise send it past the end. encoding is a TiXmlEncoding.
    static void ParseWithSpare(TiXmlDocument& doc, const std::string& text, int encoding);
};
