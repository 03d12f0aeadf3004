#include "comm/CanInterface.h"

#include "comm/BatchListeners.h"
#include "core/Clock.h"
#include "core/Console.h"
#include "core/GuardedCall.h"
#include "core/Latin1.h"
#include "core/ModuleRegistry.h"
#include "project/WindowMakers.h"

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
constexpr unsigned long readerWaitMs = 100;

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

CanInterface::CanInterface() : m_estimator(zul::wallClock())
{
    setSize(defaultExtent, defaultExtent);
}

CanInterface::~CanInterface()
{
    if (m_reader != nullptr) {
        m_reader->stopReading();
    }
    zul::print("Stop Thread\n");
    retireReader();
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
    if (device() == nullptr) {
        return;
    }
    const DeviceInfo info =
        zul::guardedCall("info", DeviceInfo(), [this] { return device()->info(); });
    QDomElement deviceElement = addElement(document, element, deviceTag);
    writeString(document, deviceElement, idAttribute,
                info.moduleName.empty() ? m_moduleName : info.moduleName);
    for (const auto& [key, value] : *device()->properties()) {
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
    } else if (tag == propertyTag && device() != nullptr) {
        readProperty(element);
    }
}

void CanInterface::readProperty(const QDomElement& element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    const std::string key = readStdString(attributes, idAttribute, std::string());
    const std::string value = readStdString(attributes, valueAttribute, std::string());
    zul::guardedCall("setProperty", [&] { device()->setProperty(key, value); });
    if (key == interfaceNameKey) {
        setName(zul::fromLatin1(value));
    }
}

void CanInterface::receive(MessageContainer& batch)
{
    if (!isConnected() || device() == nullptr) {
        return;
    }
    if (batch.srcDest() != allInterfaces && batch.srcDest() != sourceName()) {
        return;
    }
    for (const auto& message : batch.messages()) {
        if (message) {
            zul::guardedCall("sendMessage", false,
                             [&] { return device()->sendMessage(message.get()); });
        }
    }
}

bool CanInterface::selectDevice(const std::string& moduleName)
{
    if (Device* old = device()) {
        // First out of the reader's sight, which may be in its last round.
        m_link->setDevice(nullptr);
        zul::guardedCall("close", false, [old] { return old->close(); });
        delete old;
    }
    m_moduleName = moduleName;
    m_link->setDevice(ModuleRegistry::instance().createDevice(moduleName));
    return device() != nullptr;
}

bool CanInterface::connect()
{
    Device* const opened = device();
    if (opened == nullptr) {
        return false;
    }
    if (isConnected()) {
        disconnect(); // the hardware was lost, and no poll has noticed yet
    }
    const bool isOpen = zul::guardedCall("open", false, [opened] { return opened->open(); });
    const DeviceInfo info =
        zul::guardedCall("info", DeviceInfo(), [opened] { return opened->info(); });
    m_statusDriven = isStatusDriven(info.moduleName);
    if (!isOpen) {
        return false;
    }
    retireReader();
    m_reader = std::make_unique<CanRead>(m_link);
    m_link->setConnected(); // before the start, so that the reader's first round drains already
    m_reader->startReading();
    return true;
}

bool CanInterface::disconnect()
{
    if (device() == nullptr) {
        return false;
    }
    const bool closed = m_link->close();
    if (m_reader != nullptr) {
        m_reader->stopReading();
    }
    zul::print("Stop Thread\n");
    return closed;
}

DeviceStatus CanInterface::status()
{
    return device() != nullptr ? statusOf(*device()) : DeviceStatus::Closed;
}

QString CanInterface::errorMessage() const
{
    if (device() == nullptr) {
        return {};
    }
    return zul::fromLatin1(
        zul::guardedCall("errorMsg", std::string(), [this] { return device()->errorMsg(); }));
}

double CanInterface::busLoad() const
{
    const std::int32_t baudrate = device() != nullptr
                                      ? zul::guardedCall("baudrate", baudrateWithoutDevice,
                                                         [this] { return device()->baudrate(); })
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
    // Out of the interface's hands: a window that asks the user something lets polls run meanwhile.
    std::unique_ptr<MessageContainer> batch = std::move(m_batch);
    if (batch == nullptr) {
        batch = std::make_unique<MessageContainer>();
    }
    takeReceived(*batch);
    batch->setSrcDest(sourceName());
    send(*batch);
    Object::receive(*batch); // the status window
    BatchListeners::instance().notify(*batch);
    m_estimator.update(
        *batch, m_statusDriven ? LoadEstimator::Source::Status : LoadEstimator::Source::Frames,
        isConnected(), zul::wallClock());
    batch->messages().clear();
    m_batch = std::move(batch);
    if (device() != nullptr && isConnected() && status() == DeviceStatus::Closed) {
        disconnect();
        return false;
    }
    return true;
}

void CanInterface::takeReceived(MessageContainer& batch)
{
    m_link->takeReceived(m_taken);
    batch.messages().reserve(m_taken.size());
    for (Message* message : m_taken) { // never null
        batch.messages().emplace_back(message);
    }
    m_taken.clear();
}

const std::string& CanInterface::sourceName()
{
    if (m_convertedName != name()) {
        m_convertedName = name();
        m_sourceName = zul::toLatin1(name());
    }
    return m_sourceName;
}

void CanInterface::retireReader()
{
    if (m_reader != nullptr && !m_reader->wait(readerWaitMs)) {
        // Stuck in its device. It is left to end by itself, with the link that it holds: a thread
        // that still runs can neither be destroyed nor be broken off safely.
        static_cast<void>(m_reader.release());
        return;
    }
    m_reader.reset();
}

} // namespace comm
