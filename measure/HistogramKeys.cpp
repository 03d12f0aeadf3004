#include "measure/HistogramKeys.h"

#include <iterator>
#include <limits>

std::uint32_t truncatedToUnsigned(double number)
{
    constexpr std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    if (!(number > 0.0)) {
        return 0;
    }
    return number < static_cast<double>(most) ? static_cast<std::uint32_t>(number) : most;
}

std::uint32_t countInBucket(HistogramBuckets& buckets, std::uint32_t key)
{
    auto place = buckets.lower_bound(key);
    const bool isThere = place != buckets.end() && place->first == key;
    if (!isThere && buckets.size() < maxBuckets) {
        place = buckets.emplace_hint(place, key, 0U);
    } else if (!isThere) {
        const bool hasLower = place != buckets.begin();
        const bool hasHigher = place != buckets.end();
        if (hasLower && (!hasHigher || key - std::prev(place)->first < place->first - key)) {
            --place;
        }
    }
    return ++place->second;
}
