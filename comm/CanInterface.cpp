#include "comm/CanInterface.h"

#include "comm/BatchListeners.h"
#include "core/Clock.h"
#include "core/Console.h"
#include "core/GuardedCall.h"
#include "core/Latin1.h"
#include "core/ModuleRegistry.h"
#include "project/WindowMakers.h"

#include <QMutexLocker>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace comm {

namespace {

const QString windowTag = QStringLiteral("Window");
const QString deviceTag = QStringLiteral("Device");
const QString propertyTag = QStringLiteral("Property");
const QString idAttribute = QStringLiteral("id");
const QString valueAttribute = QStringLiteral("value");
constexpr const char* interfaceNameKey = "InterfaceName";

constexpr std::int32_t baudrateWithoutDevice = 1'000'000;
constexpr unsigned long destructorWaitMs = 100;

// These modules count their bus traffic themselves.
constexpr std::array statusDrivenModules{"libCanGRV614UDP", "libCanGRV614UDP_FD"};

bool isStatusDriven(const std::string& moduleName)
{
    return std::any_of(statusDrivenModules.begin(), statusDrivenModules.end(),
                       [&](const char* known) { return moduleName == known; });
}

DeviceStatus statusOf(Device& device)
{
    return zul::guardedCall("status", DeviceStatus::Closed, [&] { return device.status(); });
}

} // namespace

CanInterface::CanInterface() : m_estimator(zul::wallClock()), m_reader(*this)
{
    setSize(defaultExtent, defaultExtent);
}

CanInterface::~CanInterface()
{
    m_reader.stopReading();
    zul::print("Stop Thread\n");
    if (!m_reader.wait(destructorWaitMs)) {
        // A device that blocks in recvMessage: destroying a running thread would end the process.
        m_reader.terminate();
        m_reader.wait();
    }
}

std::unique_ptr<Object> CanInterface::create()
{
    return std::make_unique<CanInterface>();
}

ObjectTypeInfo CanInterface::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::CanInterface, &CanInterface::create);
}

ObjectWindow* CanInterface::createDialog(QWidget* parent)
{
    return WindowMakers::instance().make(*this, parent);
}

void CanInterface::writeXml(QDomDocument& document, QDomElement& parent)
{
    const ObjectTypeTexts* texts = findObjectType(ObjectType::CanInterface);
    QDomElement element = addElement(document, parent, QString::fromLatin1(texts->tag));
    writeWindow(document, element);
    if (m_device == nullptr) {
        return;
    }
    const DeviceInfo info =
        zul::guardedCall("info", DeviceInfo(), [this] { return m_device->info(); });
    QDomElement device = addElement(document, element, deviceTag);
    writeString(document, device, idAttribute, info.moduleName);
    for (const auto& [key, value] : *m_device->properties()) {
        QDomElement property = addElement(document, element, propertyTag);
        writeString(document, property, idAttribute, key);
        writeString(document, property, valueAttribute, value);
    }
}

void CanInterface::readXml(const QDomNode& node)
{
    for (QDomElement child = node.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        readElement(child);
    }
    settingsChanged();
}

void CanInterface::readElement(const QDomElement& element)
{
    const QString tag = element.tagName();
    if (tag == windowTag) {
        readWindow(element);
    } else if (tag == deviceTag) {
        selectDevice(readStdString(element.attributes(), idAttribute, std::string()));
    } else if (tag == propertyTag && m_device != nullptr) {
        readProperty(element);
    }
}

void CanInterface::readProperty(const QDomElement& element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    const std::string key = readStdString(attributes, idAttribute, std::string());
    const std::string value = readStdString(attributes, valueAttribute, std::string());
    zul::guardedCall("setProperty", [&] { m_device->setProperty(key, value); });
    if (key == interfaceNameKey) {
        setName(zul::fromLatin1(value));
    }
}

void CanInterface::receive(MessageContainer& batch)
{
    if (!m_connected || m_device == nullptr) {
        return;
    }
    if (batch.srcDest() != allInterfaces && batch.srcDest() != zul::toLatin1(name())) {
        return;
    }
    for (const auto& message : batch.messages()) {
        if (message) {
            zul::guardedCall("sendMessage", false,
                             [&] { return m_device->sendMessage(message.get()); });
        }
    }
}

bool CanInterface::selectDevice(const std::string& moduleName)
{
    if (m_device != nullptr) {
        Device* old = m_device;
        {
            // The reader may be in its last round.
            const QMutexLocker lock(&m_mutex);
            m_device = nullptr;
        }
        zul::guardedCall("close", false, [old] { return old->close(); });
        zul::guardedCall("destructor", [old] { delete old; });
    }
    Device* device = ModuleRegistry::instance().createDevice(moduleName);
    const QMutexLocker lock(&m_mutex);
    m_device = device;
    return device != nullptr;
}

bool CanInterface::connect()
{
    if (m_device == nullptr) {
        return false;
    }
    const bool opened = zul::guardedCall("open", false, [this] { return m_device->open(); });
    const DeviceInfo info =
        zul::guardedCall("info", DeviceInfo(), [this] { return m_device->info(); });
    m_statusDriven = isStatusDriven(info.moduleName);
    if (!opened) {
        return false;
    }
    m_connected = true;
    m_reader.startReading();
    return true;
}

bool CanInterface::disconnect()
{
    if (m_device == nullptr) {
        return false;
    }
    bool closed = false;
    {
        // Held over the closing, so that no module sees it in the middle of a recvMessage.
        const QMutexLocker lock(&m_mutex);
        closed = zul::guardedCall("close", false, [this] { return m_device->close(); });
        if (m_connected) {
            drainLocked();
        }
    }
    m_reader.stopReading();
    zul::print("Stop Thread\n");
    m_connected = false;
    return closed;
}

DeviceStatus CanInterface::status()
{
    return m_device != nullptr ? statusOf(*m_device) : DeviceStatus::Closed;
}

QString CanInterface::errorMessage() const
{
    if (m_device == nullptr) {
        return QString();
    }
    return zul::fromLatin1(
        zul::guardedCall("errorMsg", std::string(), [this] { return m_device->errorMsg(); }));
}

double CanInterface::busLoad() const
{
    const std::int32_t baudrate = m_device != nullptr
                                      ? zul::guardedCall("baudrate", baudrateWithoutDevice,
                                                         [this] { return m_device->baudrate(); })
                                      : baudrateWithoutDevice;
    if (baudrate == 0) {
        return 0.0;
    }
    return m_estimator.busBits() / baudrate * 100;
}

int CanInterface::frameRate() const
{
    constexpr double largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(m_estimator.rate(), largest));
}

bool CanInterface::poll()
{
    MessageContainer batch(std::move(m_batchStorage));
    takeReceived(batch);
    batch.setSrcDest(zul::toLatin1(name()));
    send(batch);
    Object::receive(batch); // the status window
    BatchListeners::instance().notify(batch);
    m_estimator.update(
        batch, m_statusDriven ? LoadEstimator::Source::Status : LoadEstimator::Source::Frames,
        m_connected, zul::wallClock());
    batch.messages().clear();
    m_batchStorage = std::move(batch);
    if (m_device != nullptr && m_connected && status() == DeviceStatus::Closed) {
        disconnect();
        return false;
    }
    return true;
}

void CanInterface::drainDevice()
{
    if (!m_connected) {
        return;
    }
    const QMutexLocker lock(&m_mutex);
    if (m_device != nullptr && m_connected) {
        drainLocked();
    }
}

void CanInterface::drainLocked()
{
    const auto next = [this] { return m_device->recvMessage(); };
    constexpr Message* none = nullptr;
    while (Message* message = zul::guardedCall("recvMessage", none, next)) {
        m_received.push_back(message);
    }
}

void CanInterface::takeReceived(MessageContainer& batch)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_taken.swap(m_received);
    }
    batch.messages().reserve(m_taken.size());
    for (Message* message : m_taken) {
        batch.messages().emplace_back(message);
    }
    m_taken.clear();
}

} // namespace comm
