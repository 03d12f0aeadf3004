#pragma once

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "traffic/TraceFrame.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <initializer_list>
#include <ostream>
#include <vector>

namespace zul::test {

/// The content of tests/data/trace/`name`; the test fails if there is none.
QByteArray traceData(const QString& name);
/// Its path.
QString traceDataPath(const QString& name);

MessageCan traceFrame(std::uint32_t id, double seconds,
                      std::initializer_list<std::uint8_t> bytes = {});

/// The frames that the files in tests/data/trace hold: 11 bits, 29 bits, remote, error, and two FD
/// frames of 12 and 20 bytes.
std::vector<MessageCan> goldenFrames();

/// The frames as one batch of the interface `source`.
MessageContainer traceBatch(const std::vector<MessageCan>& frames, const char* source = "CAN 1");

} // namespace zul::test

bool operator==(const TraceFrame& left, const TraceFrame& right);
std::ostream& operator<<(std::ostream& stream, const TraceFrame& frame);
