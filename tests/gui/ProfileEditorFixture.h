#pragma once

#include "core/SettingsStore.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/editor/DialogProfileEditor.h"
#include "gui/frame/FileDialogs.h"
#include "profile/ProfileStore.h"
#include "tests/support/TestHome.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace zul::test {

/// The editor of text profiles, used by mouse and keys.
class ProfileEditorTest : public testing::Test
{
protected:
    ProfileEditorTest()
    {
        editor.show();
        tree = editor.findChild<QTreeWidget*>(name("tree"));
        pages = editor.findChild<QStackedWidget*>(name("pages"));
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&editor));
        QApplication::setActiveWindow(&editor);
    }
    ~ProfileEditorTest() override { SettingsStore::instance().reset(); }

    static QString name(const char* text) { return QString::fromUtf8(text); }
    static QStringList texts(std::initializer_list<const char*> list)
    {
        QStringList result;
        for (const char* text : list) {
            result << name(text);
        }
        return result;
    }
    static void setVersion(int version)
    {
        SettingsStore::instance().setInteger(name("ArincProfileVersion"), version);
    }

    /// The item of these texts, from the top; null if there is none.
    QTreeWidgetItem* item(std::initializer_list<const char*> path) const
    {
        QTreeWidgetItem* at = tree->invisibleRootItem();
        for (const char* text : path) {
            QTreeWidgetItem* next = nullptr;
            for (int i = 0; i < at->childCount() && next == nullptr; ++i) {
                next = at->child(i)->text(0) == name(text) ? at->child(i) : nullptr;
            }
            if (next == nullptr) {
                return nullptr;
            }
            at = next;
        }
        return at;
    }
    /// The texts of its children.
    static QStringList below(const QTreeWidgetItem* parent)
    {
        QStringList list;
        for (int i = 0; parent != nullptr && i < parent->childCount(); ++i) {
            list << parent->child(i)->text(0);
        }
        return list;
    }
    /// Clicks an item.
    void select(std::initializer_list<const char*> path)
    {
        QTreeWidgetItem* wanted = item(path);
        ASSERT_NE(wanted, nullptr) << *(path.end() - 1);
        tree->scrollToItem(wanted); // unfolds what is above
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          tree->visualItemRect(wanted).center());
        ASSERT_EQ(tree->currentItem(), wanted);
    }
    QString selected() const { return tree->currentItem()->text(0); }

    QWidget* page() const { return pages->currentWidget(); }
    QString pageTitle() const { return page()->findChild<QLabel*>(name("title"))->text(); }
    template <typename Control>
    Control* control(const char* field) const
    {
        auto* found = editor.findChild<Control*>(name(field));
        EXPECT_NE(found, nullptr) << field;
        return found;
    }
    /// The label of a field on the page that is shown.
    QLabel* label(const char* field) const
    {
        const QWidget* wanted = editor.findChild<QWidget*>(name(field));
        for (QLabel* candidate : editor.findChildren<QLabel*>()) {
            if (candidate->buddy() == wanted) {
                return candidate;
            }
        }
        return nullptr;
    }

    // What a user does with a field.

    void type(const char* field, const char* text)
    {
        auto* widget = editor.findChild<QWidget*>(name(field));
        ASSERT_TRUE(widget != nullptr && widget->isVisible() && widget->isEnabled()) << field;
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        if (*text == '\0') {
            QTest::keyClick(widget, Qt::Key_Delete);
        }
        for (const QChar letter : name(text)) {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
        }
    }
    void press(const char* field, Qt::Key key)
    {
        QTest::keyClick(editor.findChild<QWidget*>(name(field)), key);
    }
    /// Types, and finishes the entry.
    void enter(const char* field, const char* text)
    {
        type(field, text);
        press(field, Qt::Key_Return);
    }
    void choose(const char* field, const char* text)
    {
        auto* box = control<gui::QwtComboBox>(field);
        ASSERT_TRUE(box->isVisible() && box->isEnabled()) << field;
        const int row = box->findText(name(text));
        ASSERT_GE(row, 0) << text;
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
        box->view()->setCurrentIndex(box->model()->index(row, 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
    }
    void check(const char* field)
    {
        auto* box = control<QCheckBox>(field);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
    }
    void click(const char* button)
    {
        QTest::mouseClick(control<QAbstractButton>(button), Qt::LeftButton);
    }
    void add() { click("parameter-add"); }
    void remove() { click("parameter-delete"); }

    QStringList choices(const char* field) const
    {
        const auto* box = control<gui::QwtComboBox>(field);
        QStringList list;
        for (int i = 0; i < box->count(); ++i) {
            list << box->itemText(i);
        }
        return list;
    }
    QString text(const char* field) const { return control<QLineEdit>(field)->text(); }
    int number(const char* field) const { return control<QSpinBox>(field)->value(); }
    QString chosen(const char* field) const
    {
        return control<gui::QwtComboBox>(field)->currentText();
    }

    // Files, through the window.

    void open(const QString& path)
    {
        gui::FileDialogs::setNextFileName(path);
        click("open");
    }
    void save(const QString& path)
    {
        gui::FileDialogs::setNextFileName(path);
        click("save-as");
    }
    void openText(const QByteArray& content)
    {
        home.write(name("a.pro"), content);
        open(home.file(name("a.pro")));
    }
    /// What the editor has, through a file.
    ArincProfile saved()
    {
        save(home.file(name("saved.pro")));
        ArincProfile profile;
        EXPECT_TRUE(store.readProfile(home.file(name("saved.pro")), profile));
        store.removeFromIndex(profile);
        return profile;
    }
    /// The lines of the saved file behind a mark, without blank lines and comments.
    QStringList savedLines(const char* mark)
    {
        save(home.file(name("saved.pro")));
        QStringList result;
        bool isWanted = false;
        for (const QByteArray& raw : home.read(name("saved.pro")).split('\n')) {
            const QString line = QString::fromUtf8(raw);
            if (line.startsWith(QLatin1Char('<'))) {
                isWanted = line == name(mark);
            } else if (isWanted && !line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
                result << line;
            }
        }
        return result;
    }
    /// A chapter with one new parameter, which is selected.
    void addParameter()
    {
        select({"Parameter"});
        add();
        add();
    }
    /// The tokens of the only parameter in the saved file.
    QStringList savedParameter()
    {
        const QStringList lines = savedLines("<parameter>");
        EXPECT_EQ(lines.size(), 1);
        return lines.value(0).split(QLatin1Char(';'));
    }
    QString title() const { return editor.windowTitle(); }
    bool isChanged() const { return title().endsWith(name(" (edited)")); }

    TestHome home;
    ProfileStore store;
    gui::DialogProfileEditor editor{store};
    QTreeWidget* tree = nullptr;
    QStackedWidget* pages = nullptr;
};

/// A parameter line of a text profile without a fault.
inline const QByteArray pitchLine = "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n";

} // namespace zul::test
