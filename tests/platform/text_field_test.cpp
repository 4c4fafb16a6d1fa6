// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/text_field.h"

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using platform::TextField;
using namespace Qt::StringLiterals;

namespace {

// Converts to upper case while typing, adds a full stop at the end, and keeps a text with a "?" in editing.
class Punctuation : public platform::TextFieldDelegate
{
public:
    void controlTextDidChange(TextField *control, const QVariantMap &userInfo) override
    {
        auto *editor = qobject_cast<QLineEdit *>(userInfo.value(platform::NSFieldEditor).value<QObject *>());
        QCOMPARE(editor, control); // nothing is rejected
        editor->setText(editor->text().toUpper());
    }
    bool controlTextShouldEndEditing(TextField *control, QLineEdit *fieldEditor) override
    {
        if (fieldEditor->text().contains(u'?'))
            return false;
        control->setStringValue(fieldEditor->text() + u'.');
        return true;
    }
};

} // namespace

class TextFieldTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_dialog.reset(); }
    void returnCommitsThroughTheDelegate();
    void refusedTextStaysInEditing();
    void losingTheFocusCommits();
    void settingTheValueEndsEditing();
    void resigningInAWindowNeverShown();
    void commitMayDestroyOtherFields();
    void firstClickSelectsAll();

private:
    // Two fields, the first with a delegate, and a default button in a dialog that is not shown.
    std::unique_ptr<QDialog> m_dialog;
    TextField *m_first = nullptr;
    TextField *m_second = nullptr;
    QPushButton *m_print = nullptr;
};

void TextFieldTest::init()
{
    m_dialog = std::make_unique<QDialog>();
    auto *column = new QVBoxLayout(m_dialog.get());
    column->addWidget(m_first = new TextField);
    column->addWidget(m_second = new TextField);
    column->addWidget(m_print = new QPushButton);
    m_print->setDefault(true);
    m_first->setDelegate(std::make_shared<Punctuation>());
}

void TextFieldTest::returnCommitsThroughTheDelegate()
{
    QSignalSpy committed(m_first, &TextField::stringValueCommitted);
    QTest::keyClick(m_first, Qt::Key_Return); // nothing was typed
    QCOMPARE(committed.count(), 0);
    QTest::keyClicks(m_first, u"ab"_s);
    QCOMPARE(m_first->text(), u"AB"_s);
    QCOMPARE(m_first->stringValue(), QString());
    QTest::keyClick(m_first, Qt::Key_Enter);
    QCOMPARE(m_first->text(), u"AB."_s);
    QCOMPARE(m_first->stringValue(), u"AB."_s);
    QVERIFY(m_first->endEditing());
    QCOMPARE(committed.count(), 1);
}

void TextFieldTest::refusedTextStaysInEditing()
{
    m_dialog->show();
    QSignalSpy printed(m_print, &QPushButton::clicked);
    m_first->setFocus();
    QTest::keyClicks(m_first, u"?"_s);
    QTest::keyClick(m_first, Qt::Key_Return);
    TextField::resignFirstResponder(m_print);
    QVERIFY(m_first->isEditing());
    QCOMPARE(m_dialog->focusWidget(), m_first);
    QCOMPARE(printed.count(), 0); // the default button
    QTest::keyClick(m_first, Qt::Key_Backspace);
    QTest::keyClick(m_first, Qt::Key_Return);
    QVERIFY(!m_first->isEditing());
    QCOMPARE(m_first->text(), u"."_s);
    QCOMPARE(printed.count(), 0);
    QTest::keyClick(m_first, Qt::Key_Return);
    QCOMPARE(printed.count(), 1);
}

void TextFieldTest::losingTheFocusCommits()
{
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_first->setFocus();
    QTest::keyClicks(m_first, u"x"_s);
    QFocusEvent toContextMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(m_first, &toContextMenu);
    QVERIFY(m_first->isEditing());
    QFocusEvent toOtherWindow(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(m_first, &toOtherWindow);
    QVERIFY(m_first->isEditing());
    QTest::keyClick(m_first, Qt::Key_Tab);
    QVERIFY(m_second->hasFocus());
    QCOMPARE(m_first->stringValue(), u"X."_s);
}

void TextFieldTest::settingTheValueEndsEditing()
{
    QSignalSpy committed(m_first, &TextField::stringValueCommitted);
    QTest::keyClicks(m_first, u"x"_s);
    m_first->setStringValue(u"set"_s);
    QVERIFY(m_first->endEditing());
    QCOMPARE(m_first->text(), u"set"_s);
    QCOMPARE(committed.count(), 0);
}

void TextFieldTest::resigningInAWindowNeverShown()
{
    m_second->setFocus();
    QTest::keyClicks(m_first, u"a"_s);
    TextField::resignFirstResponder(m_print);
    QCOMPARE(m_first->stringValue(), u"A."_s);
    QCOMPARE(m_dialog->focusWidget(), m_second); // it is not being edited
    QTest::keyClicks(m_second, u"b"_s);
    TextField::resignFirstResponder(m_print);
    QCOMPARE(m_second->stringValue(), u"b"_s);
    QVERIFY(!m_dialog->focusWidget());
    m_print->setFocus();
    QTest::keyClicks(m_first, u"c"_s);
    TextField::resignFirstResponder(m_print);
    QVERIFY(!m_first->isEditing());
    QCOMPARE(m_dialog->focusWidget(), m_print);
    TextField::resignFirstResponder(nullptr);

    TextField alone; // in another window
    QTest::keyClicks(&alone, u"c"_s);
    TextField::resignFirstResponder(&alone);
    QCOMPARE(alone.stringValue(), u"c"_s);
}

void TextFieldTest::commitMayDestroyOtherFields()
{
    connect(m_first, &TextField::stringValueCommitted, m_second, [this] { delete m_second; });
    QTest::keyClicks(m_first, u"a"_s);
    QTest::keyClicks(m_second, u"b"_s);
    TextField::resignFirstResponder(m_first);
    QCOMPARE(m_dialog->findChildren<TextField *>(), QList<TextField *>{m_first});
}

void TextFieldTest::firstClickSelectsAll()
{
    m_second->setText(u"00000"_s);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_first->setFocus();
    QTest::mouseClick(m_second, Qt::LeftButton, {}, {8, m_second->height() / 2});
    QTest::keyClicks(m_second, u"4"_s);
    QCOMPARE(m_second->text(), u"4"_s);
    QTest::mouseClick(m_second, Qt::LeftButton, {}, {4, m_second->height() / 2}); // places the cursor there
    QTest::keyClicks(m_second, u"2"_s);
    QCOMPARE(m_second->text(), u"24"_s);
}

QTEST_MAIN(TextFieldTest)
#include "text_field_test.moc"
