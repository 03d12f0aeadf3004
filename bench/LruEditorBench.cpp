// The editor of LRU documents with 10,000 parameters: what each action of the user costs, the
// repaint included.

#include "bench/WindowMain.h"
#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/editor/Lru825Fields.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "profile/Lru825Reader.h"
#include "profile/Lru825Schema.h"
#include "profile/Lru825Writer.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

#include <map>
#include <string>
#include <vector>

namespace {

constexpr int parameterCount = 10'000;
constexpr int messageCount = 200;
constexpr int referenceCount = 20; // of a message
constexpr int interfaceCount = 4;
constexpr int entryCount = 2; // of each tenth parameter

void fillMessages(std::map<std::uint32_t, Lru825Message>& messages, const QString& name)
{
    for (int i = 0; i < messageCount / 2; ++i) {
        Lru825Message message;
        message.name = name + QString::number(i);
        message.assignments.resize(interfaceCount);
        message.dataField.parameters.resize(referenceCount);
        for (int k = 0; k < referenceCount; ++k) {
            message.dataField.parameters[static_cast<std::size_t>(k)].name =
                QStringLiteral("Parameter%1").arg(i * referenceCount + k);
        }
        messages.emplace(message.serial, message);
    }
}

Lru825Document largeDocument()
{
    Lru825Document document;
    for (int i = 0; i < interfaceCount; ++i) {
        Lru825Interface made;
        made.name = QStringLiteral("can%1").arg(i);
        document.interfaces.emplace(made.serial, made);
    }
    fillMessages(document.transmitMessages, QStringLiteral("Sent"));
    fillMessages(document.receiveMessages, QStringLiteral("Received"));
    for (int i = 0; i < parameterCount; ++i) {
        Lru825Parameter parameter;
        parameter.name = QStringLiteral("Parameter%1").arg(i);
        parameter.fid = static_cast<std::uint32_t>(i) % 128;
        if (i % 10 == 0) {
            parameter.enumEntries.resize(entryCount);
        }
        document.parameters.emplace(parameter.serial, parameter);
    }
    return document;
}

/// The window with that document, its lists unfolded.
class Rig
{
public:
    Rig()
    {
        zul::writeLru825(path(), Lru825Schema(), largeDocument());
        m_editor.show();
        open();
        expand();
        settle();
    }

    static Rig& instance()
    {
        static auto* rig = new Rig; // it outlives the application's windows
        return *rig;
    }

    QString path() const { return m_directory.filePath(QStringLiteral("lru.xml")); }
    static void settle() { QApplication::processEvents(); }

    void open()
    {
        gui::MessageBoxes::setNextAnswer(QMessageBox::No);
        gui::FileDialogs::setNextFileName(path());
        m_editor.slotOpenProfile();
    }
    void expand()
    {
        tree().expandItem(item({2}));
        tree().expandItem(item({1, 1, 0}));
    }
    gui::DialogProfileEditor825_3& editor() { return m_editor; }
    QTreeWidget& tree() { return *find<QTreeWidget>("tree"); }
    /// The item at the end of a path of row numbers.
    QTreeWidgetItem* item(const std::vector<int>& path)
    {
        QTreeWidgetItem* found = tree().invisibleRootItem();
        for (const int row : path) {
            found = found != nullptr ? found->child(row) : nullptr;
        }
        return found;
    }
    QTreeWidgetItem* parameter(int number) { return item({2, number}); }
    QTreeWidgetItem* reference(int message, int number)
    {
        return item({1, 1, 0, message, 1, number});
    }
    QTreeWidgetItem* someItem(const QString& page)
    {
        static const std::map<QString, std::vector<int>> paths{
            {QStringLiteral("header"), {0}},
            {QStringLiteral("lru"), {1}},
            {QStringLiteral("interface"), {1, 0, 0}},
            {QStringLiteral("message"), {1, 1, 0, 50}},
            {QStringLiteral("assignment"), {1, 1, 0, 50, 0, 0}},
            {QStringLiteral("dataField"), {1, 1, 0, 50, 1}},
            {QStringLiteral("reference"), {1, 1, 0, 50, 1, 3}},
            {QStringLiteral("parameter"), {2, 50}},
            {QStringLiteral("enumEntry"), {2, 50, 0}}};
        return item(paths.at(page));
    }
    template <typename Widget>
    Widget* find(const char* name)
    {
        return m_editor.findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* button) { find<QToolButton>(button)->click(); }
    static void press(QWidget& widget, int key, const QString& text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }

private:
    QTemporaryDir m_directory;
    gui::DialogProfileEditor825_3 m_editor;
};

template <typename Prepare, typename Act>
void measure(benchmark::State& state, Prepare prepare, Act act)
{
    Rig& rig = Rig::instance();
    int turn = 0;
    for ([[maybe_unused]] auto _ : state) {
        prepare(rig, turn);
        Rig::settle();
        bench::timed(state, [&] {
            act(rig, turn);
            Rig::settle();
        });
        ++turn;
    }
    bench::setItems(state, 1);
}

void nothing(Rig& /*rig*/, int /*turn*/) {}

// What the file alone costs.
void readFile(benchmark::State& state)
{
    Lru825Schema schema;
    for ([[maybe_unused]] auto _ : state) {
        Lru825Document document;
        bench::timed(state, [&] { zul::readLru825(Rig::instance().path(), schema, document); });
    }
    bench::setItems(state, 1);
}

void openFile(benchmark::State& state)
{
    measure(state, nothing, [](Rig& rig, int) { rig.open(); });
    Rig::instance().expand();
}

void saveFile(benchmark::State& state)
{
    measure(state, nothing, [](Rig& rig, int) { rig.editor().slotSaveProfile(); });
}

void newProfile(benchmark::State& state)
{
    measure(
        state,
        [](Rig& rig, int) {
            rig.open();
            rig.expand();
        },
        [](Rig& rig, int) { rig.editor().slotNewProfile(); });
    Rig::instance().open();
    Rig::instance().expand();
}

void selectParameter(benchmark::State& state)
{
    measure(state, nothing, [](Rig& rig, int turn) {
        rig.tree().setCurrentItem(rig.parameter(turn * 997 % parameterCount));
    });
}

void selectReference(benchmark::State& state)
{
    measure(state, nothing, [](Rig& rig, int turn) {
        rig.tree().setCurrentItem(rig.reference(turn * 7 % 100, turn % referenceCount));
    });
}

// The names that are offered have changed.
void selectReferenceAfterRenaming(benchmark::State& state)
{
    measure(
        state,
        [](Rig& rig, int turn) {
            rig.tree().setCurrentItem(rig.parameter(turn % 100));
            rig.editor().slotParaName(QStringLiteral("Renamed%1").arg(turn));
        },
        [](Rig& rig, int turn) { rig.tree().setCurrentItem(rig.reference(turn % 100, 0)); });
}

void openNameList(benchmark::State& state)
{
    measure(
        state,
        [](Rig& rig, int turn) {
            rig.find<QComboBox>("referenceName")->hidePopup();
            rig.tree().setCurrentItem(rig.reference(turn % 100, 1));
        },
        [](Rig& rig, int) { rig.find<QComboBox>("referenceName")->showPopup(); });
    Rig::instance().find<QComboBox>("referenceName")->hidePopup();
}

// Range 0: the page on which is added and deleted.
const char* const pages[] = {"interface", "message",   "assignment",
                             "reference", "parameter", "enumEntry"};

void addRecord(benchmark::State& state)
{
    const QString page = QLatin1String(pages[state.range(0)]);
    measure(
        state,
        [&page](Rig& rig, int turn) {
            if (turn != 0) {
                rig.click("parameter-delete");
            }
            rig.tree().setCurrentItem(rig.someItem(page));
        },
        [](Rig& rig, int) { rig.click("parameter-add"); });
    Rig::instance().click("parameter-delete");
}

void deleteRecord(benchmark::State& state)
{
    const QString page = QLatin1String(pages[state.range(0)]);
    measure(
        state,
        [&page](Rig& rig, int) {
            rig.tree().setCurrentItem(rig.someItem(page));
            rig.click("parameter-add");
        },
        [](Rig& rig, int) { rig.click("parameter-delete"); });
}

// A key in a field, to and fro.
void editField(benchmark::State& state, const std::string& page, const std::string& name)
{
    auto* control = Rig::instance().find<QWidget>(name.c_str());
    const bool isText = qobject_cast<QLineEdit*>(control) != nullptr ||
                        qobject_cast<QPlainTextEdit*>(control) != nullptr;
    const bool isCheck = qobject_cast<QCheckBox*>(control) != nullptr;
    measure(
        state,
        [&](Rig& rig, int) {
            rig.tree().setCurrentItem(rig.someItem(QString::fromLatin1(page.c_str())));
            control->setFocus();
        },
        [&](Rig&, int turn) {
            const bool isOdd = turn % 2 != 0;
            if (isText) {
                Rig::press(*control, isOdd ? Qt::Key_Backspace : Qt::Key_1,
                           isOdd ? QString() : QStringLiteral("1"));
            } else if (isCheck) {
                qobject_cast<QCheckBox*>(control)->click();
            } else {
                Rig::press(*control, isOdd ? Qt::Key_Up : Qt::Key_Down, QString());
            }
        });
}

template <typename Fields>
void registerFields(const std::string& page, const Fields& fields)
{
    for (const gui::EditorField& field : fields) {
        std::vector<std::string> names{field.name};
        if (field.kind == gui::FieldKind::Position) {
            names = {std::string(field.name) + "Byte", std::string(field.name) + "Bit"};
        }
        for (const std::string& name : names) {
            benchmark::RegisterBenchmark(("field/" + name).c_str(), [page, name](
                                                                        benchmark::State& state) {
                editField(state, page, name);
            })->UseManualTime();
        }
    }
}

BENCHMARK(readFile)->UseManualTime();
BENCHMARK(openFile)->UseManualTime();
BENCHMARK(saveFile)->UseManualTime();
BENCHMARK(newProfile)->UseManualTime();
BENCHMARK(selectParameter)->UseManualTime();
BENCHMARK(selectReference)->UseManualTime();
BENCHMARK(selectReferenceAfterRenaming)->UseManualTime();
BENCHMARK(openNameList)->UseManualTime();
BENCHMARK(addRecord)->ArgName("page")->DenseRange(0, 5)->UseManualTime();
BENCHMARK(deleteRecord)->ArgName("page")->DenseRange(0, 5)->UseManualTime();

} // namespace

int main(int argc, char** argv)
{
    registerFields("header", gui::lru825::headerFields);
    registerFields("lru", gui::lru825::lruFields);
    registerFields("interface", gui::lru825::interfaceFields);
    registerFields("message", gui::lru825::messageFields);
    registerFields("dataField", gui::lru825::dataFieldFields);
    registerFields("assignment", gui::lru825::assignmentFields);
    registerFields("reference", gui::lru825::referenceFields);
    registerFields("parameter", gui::lru825::parameterFields);
    registerFields("enumEntry", gui::lru825::enumFields);
    return bench::runWindowBenchmarks(argc, argv,
                                      {{"openFile/manual_time", "readFile/manual_time", 0.0}});
}
