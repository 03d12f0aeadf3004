#pragma once

#include "message/MessageContainer.h"

#include <vector>

namespace bench {

/// Batches of frames whose identifiers go round, for windows and tables to receive again and again.
///
/// Every pool has about as many frames, so that reading them costs the same however few identifiers
/// they carry: what is left is the cost of the receiver's own rows.
class FramePool
{
public:
    /// `identifiers` different ones in a mixed order, in batches of `batchSize` frames of 8 bytes.
    FramePool(int identifiers, int batchSize);

    /// The next batch, after the last one the first again.
    MessageContainer& next();
    /// Batches until all identifiers have come.
    int batchesInRound() const { return m_batchesInRound; }

private:
    std::vector<MessageContainer> m_batches;
    std::size_t m_next = 0;
    int m_batchesInRound;
};

} // namespace bench
