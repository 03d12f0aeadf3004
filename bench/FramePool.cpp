#include "bench/FramePool.h"

#include "message/MessageCan.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace bench {

namespace {

constexpr int poolFrames = 20'000;
constexpr std::uint32_t spread = 26'113; // between identifiers, all of which fit into 29 bits
constexpr std::uint32_t byteCount = 8;
constexpr unsigned seed = 825;
constexpr double secondsPerFrame = 0.000'113; // no round times: they are rounded the slow way

std::vector<std::uint32_t> mixedIdentifiers(int count)
{
    std::vector<std::uint32_t> ids(static_cast<std::size_t>(count));
    std::iota(ids.begin(), ids.end(), 1U);
    std::transform(ids.begin(), ids.end(), ids.begin(),
                   [](std::uint32_t id) { return id * spread; });
    std::shuffle(ids.begin(), ids.end(), std::mt19937(seed));
    return ids;
}

} // namespace

FramePool::FramePool(int identifiers, int batchSize)
    : m_batchesInRound((identifiers + batchSize - 1) / batchSize)
{
    const std::vector<std::uint32_t> ids = mixedIdentifiers(identifiers);
    const int batches = (poolFrames + batchSize - 1) / batchSize;
    std::size_t frames = 0;
    for (int i = 0; i < batches; ++i) {
        MessageContainer& batch = m_batches.emplace_back();
        for (int n = 0; n < batchSize; ++n, ++frames) {
            auto* frame = new zul::MessageCan;
            frame->setId(ids[frames % ids.size()]);
            frame->setMode(zul::MessageCan::EMsgMode::Extended);
            frame->setByteCount(byteCount);
            frame->setTimeStamp(1'000.0 + static_cast<double>(frames) * secondsPerFrame);
            frame->msg()[0] = static_cast<std::uint8_t>(frames);
            batch.addMessage(SmartPtr<Message>(frame));
        }
    }
}

MessageContainer& FramePool::next()
{
    MessageContainer& batch = m_batches[m_next];
    m_next = (m_next + 1) % m_batches.size();
    return batch;
}

} // namespace bench
