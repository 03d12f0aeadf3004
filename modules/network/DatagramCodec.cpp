#include "modules/network/DatagramCodec.h"

namespace cannetwork {

DatagramDecoder::~DatagramDecoder() = default;

DatagramEncoder::~DatagramEncoder() = default;

} // namespace cannetwork
