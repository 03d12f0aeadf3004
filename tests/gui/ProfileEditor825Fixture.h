#pragma once

#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/editor/EditorForm.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "tests/support/TestHome.h"

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>
#include <memory>

namespace zul::test {

/// The editor of LRU documents in its window, used by mouse and keys.
class ProfileEditor825Test : public testing::Test
{
protected:
    void SetUp() override { open(); }

    void open()
    {
        m_editor = std::make_unique<gui::DialogProfileEditor825_3>();
        m_editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_editor.get()));
        QApplication::setActiveWindow(m_editor.get());
        m_asked = gui::MessageBoxes::count();
    }

    template <typename Widget>
    Widget& find(const char* name) const
    {
        auto* found = m_editor->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    QTreeWidget& tree() const { return find<QTreeWidget>("tree"); }
    const Lru825Document& document() const { return m_editor->document(); }
    Lru825Item selected() const { return m_editor->selection().item; }
    int asked() const { return gui::MessageBoxes::count() - m_asked; }
    QString path(const char* name) const { return m_home.file(QLatin1String(name)); }

    /// The item below the items of these texts.
    QTreeWidgetItem* item(std::initializer_list<const char*> texts) const
    {
        QTreeWidgetItem* at = tree().invisibleRootItem();
        for (const char* text : texts) {
            QTreeWidgetItem* next = nullptr;
            for (int i = 0; i < at->childCount() && next == nullptr; ++i) {
                next = at->child(i)->text(0) == QString::fromUtf8(text) ? at->child(i) : nullptr;
            }
            if (next == nullptr) {
                ADD_FAILURE() << "no item " << text;
                return nullptr;
            }
            at = next;
        }
        return at;
    }
    void select(QTreeWidgetItem* wanted) const
    {
        ASSERT_NE(wanted, nullptr);
        for (QTreeWidgetItem* up = wanted->parent(); up != nullptr; up = up->parent()) {
            up->setExpanded(true);
        }
        tree().scrollToItem(wanted);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree().visualItemRect(wanted).center());
        ASSERT_EQ(tree().currentItem(), wanted);
    }
    void select(std::initializer_list<const char*> texts) const { select(item(texts)); }
    void click(const char* button) const
    {
        QTest::mouseClick(&find<QAbstractButton>(button), Qt::LeftButton);
    }
    void add() const { click("parameter-add"); }
    void remove() const { click("parameter-delete"); }
    void addTo(std::initializer_list<const char*> texts) const
    {
        select(texts);
        add();
    }

    /// Types in the place of what a field holds.
    void type(const char* name, const char* text) const
    {
        auto& field = find<QWidget>(name);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QString::fromUtf8(text));
    }
    void choose(const char* name, int steps) const
    {
        auto& box = find<QWidget>(name);
        box.setFocus();
        for (int i = 0; i < qAbs(steps); ++i) {
            QTest::keyClick(&box, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
    }
    void check(const char* name) const { QTest::keyClick(&find<QWidget>(name), Qt::Key_Space); }
    QStringList choices(const char* name) const
    {
        const auto& box = find<QComboBox>(name);
        QStringList texts;
        for (int i = 0; i < box.count(); ++i) {
            texts.append(box.itemText(i));
        }
        return texts;
    }
    /// The page that is shown; null for the empty one.
    gui::EditorForm* page() const
    {
        return qobject_cast<gui::EditorForm*>(find<QStackedWidget>("pages").currentWidget());
    }
    QString pageTitle() const
    {
        return page() != nullptr ? page()->findChild<QLabel*>(QStringLiteral("title"))->text()
                                 : QString();
    }
    /// The labels of the page, from top to bottom.
    QStringList labels() const
    {
        QStringList texts;
        const auto* form = page()->findChild<QFormLayout*>();
        for (int row = 0; row < form->rowCount(); ++row) {
            texts.append(
                qobject_cast<QLabel*>(form->itemAt(row, QFormLayout::LabelRole)->widget())->text());
        }
        return texts;
    }
    /// Opens a file of this content.
    void openFile(const char* name, const QByteArray& content)
    {
        m_home.write(QLatin1String(name), content);
        gui::FileDialogs::setNextFileName(path(name));
        click("open");
        ASSERT_EQ(m_editor->fileName(), path(name));
    }
    void saveAs(const char* name)
    {
        gui::FileDialogs::setNextFileName(path(name));
        click("save-as");
        ASSERT_TRUE(m_home.has(QLatin1String(name)));
    }

    const Lru825Interface& interface() const { return document().interfaces.begin()->second; }
    const Lru825Message& transmitted() const { return document().transmitMessages.begin()->second; }
    const Lru825Message& received() const { return document().receiveMessages.begin()->second; }
    const Lru825Parameter& parameter() const { return document().parameters.begin()->second; }

    TestHome m_home;
    std::unique_ptr<gui::DialogProfileEditor825_3> m_editor;

private:
    int m_asked = 0;
};

} // namespace zul::test
