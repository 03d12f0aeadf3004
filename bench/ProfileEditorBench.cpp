// Every action of the editor of text profiles on a profile of 10,000 parameters, through its
// window. None may take 100 ms.

#include "bench/ProfileFiles.h"
#include "bench/WindowMain.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/editor/DialogProfileEditor.h"
#include "gui/frame/FileDialogs.h"
#include "profile/ProfileStore.h"

#include <QApplication>
#include <QLineEdit>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

namespace {

constexpr int parameterCount = 10'000; // in one chapter

enum FixedItem { Header, ProfileInfo, UserFids, UserUnits, Enumerations, Chapters };

QTreeWidgetItem* childOf(QTreeWidgetItem* item, int row)
{
    return item != nullptr ? item->child(row) : nullptr;
}

/// The window with the profile, its chapter unfolded.
class Window
{
public:
    Window()
    {
        m_editor.show();
        open();
        tree().expandItem(fixed(Chapters));
        tree().expandItem(chapter());
        settle();
    }

    void open()
    {
        gui::FileDialogs::setNextFileName(m_files.text(parameterCount));
        click("open");
    }
    void save()
    {
        gui::FileDialogs::setNextFileName(m_directory.filePath(QStringLiteral("saved.pro")));
        click("save-as");
    }
    void click(const char* name) { control<QToolButton>(name).click(); }
    template <typename Control>
    Control& control(const char* name) const
    {
        return *m_editor.findChild<Control*>(QLatin1String(name));
    }
    QTreeWidget& tree() const { return control<QTreeWidget>("tree"); }
    QTreeWidgetItem* fixed(FixedItem item) const { return tree().topLevelItem(item); }
    QTreeWidgetItem* child(FixedItem item) const { return childOf(fixed(item), 0); }
    QTreeWidgetItem* chapter() const { return child(Chapters); }
    QTreeWidgetItem* parameter() const { return childOf(chapter(), parameterCount / 2); }
    void select(QTreeWidgetItem* item) { tree().setCurrentItem(item); }
    /// Lays out and paints what has changed.
    static void settle() { QApplication::processEvents(); }

private:
    bench::ProfileFiles m_files;
    QTemporaryDir m_directory;
    ProfileStore m_store;
    gui::DialogProfileEditor m_editor{m_store};
};

Window& window()
{
    static auto* made = new Window; // as long as the program
    return *made;
}

// `prepare` is not counted; `act` is, with what is painted for it.
template <typename Prepare, typename Act>
void measure(benchmark::State& state, Prepare prepare, Act act)
{
    for ([[maybe_unused]] auto _ : state) {
        prepare();
        Window::settle();
        bench::timed(state, [&] {
            act();
            Window::settle();
        });
    }
}

void openProfile(benchmark::State& state)
{
    Window own;
    measure(
        state, [] {}, [&] { own.open(); });
}

void saveProfile(benchmark::State& state)
{
    measure(
        state, [] {}, [] { window().save(); });
}

void selectParameter(benchmark::State& state)
{
    Window& at = window();
    measure(
        state, [&] { at.select(at.fixed(Header)); }, [&] { at.select(at.parameter()); });
}

void selectChapter(benchmark::State& state)
{
    Window& at = window();
    measure(
        state, [&] { at.select(at.fixed(Header)); }, [&] { at.select(at.chapter()); });
}

void selectEnumeration(benchmark::State& state)
{
    Window& at = window();
    at.select(at.fixed(Enumerations));
    at.click("parameter-add");
    QTreeWidgetItem* enumeration = at.child(Enumerations);
    measure(
        state, [&] { at.select(at.fixed(Header)); }, [&] { at.select(enumeration); });
    at.select(enumeration);
    at.click("parameter-delete");
}

// Adds below the item, and deletes what was added; either is counted.
void addBelow(benchmark::State& state, QTreeWidgetItem* item)
{
    Window& at = window();
    measure(
        state, [&] { at.select(item); }, [&] { at.click("parameter-add"); });
    const auto added = static_cast<int>(state.iterations());
    for (int i = 0; i < added; ++i) {
        at.select(childOf(item, item != nullptr ? item->childCount() - 1 : 0));
        at.click("parameter-delete");
    }
}

void addParameter(benchmark::State& state)
{
    addBelow(state, window().chapter());
}

void addEnumeration(benchmark::State& state)
{
    addBelow(state, window().fixed(Enumerations));
}

void deleteParameter(benchmark::State& state)
{
    Window& at = window();
    const auto add = [&] {
        at.select(at.chapter());
        at.click("parameter-add");
    };
    measure(state, add, [&] { at.click("parameter-delete"); });
}

void addAndDeleteUnit(benchmark::State& state)
{
    Window& at = window();
    const auto act = [&] {
        at.click("parameter-add");
        at.click("parameter-delete");
    };
    measure(
        state, [&] { at.select(at.fixed(UserUnits)); }, act);
}

void renameEnumeration(benchmark::State& state)
{
    Window& at = window();
    at.select(at.fixed(Enumerations));
    at.click("parameter-add");
    auto& field = at.control<QLineEdit>("enumName");
    int number = 0;
    measure(
        state, [] {}, [&] { field.setText(QStringLiteral("E%1").arg(++number)); });
    at.click("parameter-delete");
}

void renameUnit(benchmark::State& state)
{
    Window& at = window();
    at.select(at.child(UserUnits));
    auto& field = at.control<QSpinBox>("unitValue"); // all parameters follow
    measure(
        state, [] {}, [&] { field.setValue(field.value() == 100 ? 101 : 100); });
}

void renameFid(benchmark::State& state)
{
    Window& at = window();
    at.select(at.child(UserFids)); // that of the chapter
    auto& field = at.control<QLineEdit>("fidName");
    int number = 0;
    measure(
        state, [] {}, [&] { field.setText(QStringLiteral("F%1").arg(++number)); });
}

void moveChapter(benchmark::State& state)
{
    Window& at = window();
    at.select(at.chapter());
    auto& box = at.control<gui::QwtComboBox>("chapterFid");
    int row = 1;
    const auto act = [&] {
        row = row == 1 ? 2 : 1;
        box.setCurrentIndex(row);
        emit box.activated(row);
    };
    measure(
        state, [] {}, act);
}

void editName(benchmark::State& state)
{
    Window& at = window();
    at.select(at.parameter());
    auto& field = at.control<QLineEdit>("nme");
    int number = 0;
    measure(
        state, [] {}, [&] { field.setText(QStringLiteral("Name %1").arg(++number)); });
}

// Steps through all that a selection of the parameter's page offers.
void editChoice(benchmark::State& state, const char* name)
{
    Window& at = window();
    at.select(at.parameter());
    auto& box = at.control<gui::QwtComboBox>(name);
    const auto act = [&] {
        const int row = (box.currentIndex() + 1) % box.count();
        box.setCurrentIndex(row);
        emit box.activated(row);
    };
    measure(
        state, [] {}, act);
}

void editChannel(benchmark::State& state)
{
    editChoice(state, "lcc");
}

void editUnit(benchmark::State& state)
{
    editChoice(state, "pua");
}

void editDataType(benchmark::State& state)
{
    editChoice(state, "dtn");
}

void editPosition(benchmark::State& state)
{
    Window& at = window();
    at.select(at.parameter());
    auto& field = at.control<QSpinBox>("sppByte");
    measure(
        state, [] {}, [&] { field.setValue((field.value() + 1) % 8); });
}

constexpr int fewActions = 5;
constexpr int manyActions = 100;

// clang-format off
BENCHMARK(openProfile)->UseManualTime()->Iterations(fewActions)->Unit(benchmark::kMillisecond);
BENCHMARK(saveProfile)->UseManualTime()->Iterations(fewActions)->Unit(benchmark::kMillisecond);
BENCHMARK(selectParameter)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(selectChapter)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(selectEnumeration)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(addParameter)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(deleteParameter)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(addEnumeration)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(addAndDeleteUnit)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(renameEnumeration)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(renameUnit)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(renameFid)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(moveChapter)->UseManualTime()->Iterations(fewActions)->Unit(benchmark::kMillisecond);
BENCHMARK(editName)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(editChannel)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(editUnit)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(editDataType)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
BENCHMARK(editPosition)->UseManualTime()->Iterations(manyActions)->Unit(benchmark::kMillisecond);
// clang-format on

} // namespace

int main(int argc, char** argv)
{
    return bench::runWindowBenchmarks(argc, argv, {});
}
