#pragma once

#include "project/SettingsObject.h"

#include <array>

/// `Mode` of a Function Gen. Control window.
struct FunctionGenSettings
{
    bool inputOn = true;
    bool outputOn = true;
    QString inputInterface = allInterfacesName();
    QString outputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("outputOn", record.outputOn);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
        archive.field("outputInterface", record.outputInterface, allInterfacesName());
    }
};

/// The settings of a Function Gen. Control window.
class ObjectFunctionGen
    : public SettingsObject<ObjectFunctionGen, FunctionGenSettings, ObjectType::FunctionGen>
{
public:
    struct Generator
    {
        std::int32_t nodeId = 0;
        std::int32_t nodeBaseId = 0;
        std::int32_t baudrate = 0;
    };

    struct GeneratorChannel
    {
        std::int32_t channel = 0; ///< index of the signal
        bool active = true;
        std::int32_t waveForm = 0;
        std::uint32_t canId = 1230;
        std::int32_t dataType = 2;
        std::int32_t frequencyFactor = 1;
        std::int32_t amplitudeFactor = 1;
        std::int32_t offsetFactor = 1;
        float frequency = 1.0F;
        float amplitude = 1.0F;
        float offset = 0.0F;
        std::int32_t separation = 10;
    };

    static constexpr std::size_t signalCount = 4;
    using Signals = std::array<GeneratorChannel, signalCount>;

    ObjectFunctionGen();
    ~ObjectFunctionGen() override;

    Generator& generator() { return m_generator; }
    const Generator& generator() const { return m_generator; }
    Signals& channels() { return m_channels; }
    const Signals& channels() const { return m_channels; }

protected:
    void writeChildren(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Generator m_generator;
    Signals m_channels;
};
