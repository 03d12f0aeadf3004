#pragma once

#include "gui/controls/BusyCursor.h"
#include "gui/frame/DialogInput.h"
#include "node/GeneratorControl.h"
#include "project/ObjectFunctionGen.h"

#include <array>
#include <memory>

class QListWidgetItem;
class QTabWidget;
class QTimer;

namespace gui {

class GeneratorNodePanel;
class GeneratorPage;

/// The operator's panel of a function generator on the bus.
class DialogFunctionGen : public DialogInput
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogFunctionGen(ObjectFunctionGen* object, QWidget* parent);
    ~DialogFunctionGen() override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;
    void forceClose() override;

protected:
    std::optional<Input> input() override;

private slots:
    void slotTimeout();
    void slotTimeoutFlash();
    void slotOutputInterface(const QString& name);
    void slotOutputOn(bool on);
    void slotSearch();
    void slotNode(QListWidgetItem* current, QListWidgetItem* previous);
    void slotNodeId(int nodeId);
    void slotFlashNodeId();
    void slotNodeCanId(int baseId);
    void slotFlashNodeCanId();
    void slotBaudrate(int index);
    void slotFlashBaudrate();
    void slotFlashParameter();
    void slotTab(int channel);
    void slotOnOff(int state);
    void slotWaveForm(int waveform);
    void slotId(int id);
    void slotDataType(int dataType);
    void slotSeparation(int separation);
    void slotFrequencyRange(int exponent);
    void slotFrequency(int position);
    void slotFrequency(double frequency);
    void slotAmplitudeRange(int exponent);
    void slotAmplitude(int position);
    void slotAmplitude(double amplitude);
    void slotOffsetRange(int exponent);
    void slotOffset(int position);
    void slotOffset(double offset);

private:
    using Channel = ObjectFunctionGen::GeneratorChannel;

    void build();
    QTabWidget* buildPages();
    void connectPanel();
    void connectPage(GeneratorPage& page);

    Channel& channel();
    void showSettings();
    void showChannel();
    void showFlash();
    void endSearch();
    /// The addressed generator as it was when the question was asked; nothing unless the answer is
    /// yes.
    std::optional<ObjectFunctionGen::Generator> confirmed(const char* question);
    /// Sends a request to the node and waits for its reply.
    void flash(MessageContainer batch);
    void sendFrames(MessageContainer batch);
    /// What a change of the shown channel ends with.
    void channelChanged(MessageContainer batch);

    ObjectFunctionGen* m_functionGen;
    GeneratorControl m_control;
    std::size_t m_selectedChannel = 0;
    std::unique_ptr<BusyCursor> m_searchCursor;

    GeneratorNodePanel* m_panel = nullptr;
    QTabWidget* m_tabs = nullptr;
    std::array<GeneratorPage*, ObjectFunctionGen::signalCount> m_pages{};
    QTimer* m_searchTimer;
    QTimer* m_flashTimer;
};

} // namespace gui
