#pragma once

#include "traffic/IdentifierIndex.h"

#include <cstdint>
#include <string>
#include <vector>

class MessageContainer;

/// The identifiers that were seen on the bus, each once.
///
/// Every batch of every interface comes by here: a frame whose identifier is listed already takes
/// no memory, and one look into a flat table.
class ActiveIdentifiers
{
public:
    /// Most identifiers that are kept: a bus with random ones would take all memory otherwise.
    static constexpr int maxIdentifiers = 100'000;

    /// Takes the frames of a batch, whatever their type. Gives the identifiers that were not listed
    /// before, in the order of their first frames, and none beyond `maxIdentifiers`; the next call
    /// changes what was given.
    const std::vector<std::uint32_t>& update(const MessageContainer& batch);
    void clear();

    int count() const { return m_count; }

private:
    IdentifierIndex m_index;
    int m_count = 0;
    std::vector<std::uint32_t> m_added;
};

/// How the list shows an identifier: in decimal if 11 bits hold it, else as "0x%x".
std::string activeIdentifierText(std::uint32_t identifier);
