#pragma once

#include <string>
#include <utility>
#include <vector>

// One dictionary file read the way the program reads it (TinyXML, default
// encoding), with everything the program's loader would trip over noted.
class CDictionaryFile {
public:
    explicit CDictionaryFile(const std::string& path);

    bool Parsed() const { return m_bParsed; }
    const std::string& Error() const { return m_strError; }

    // Entries in file order, UTF-8 as stored.
    const std::vector<std::pair<std::string, std::string>>& Entries() const { return m_vecEntries; }

    // Children of the root that are no element or lack an attribute.
    const std::vector<std::string>& Faults() const { return m_vecFaults; }

private:
    bool m_bParsed = false;
    std::string m_strError;
    std::vector<std::pair<std::string, std::string>> m_vecEntries;
    std::vector<std::string> m_vecFaults;
};
