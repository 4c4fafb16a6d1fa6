// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/text_field.h"

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using platform::TextField;
using platform::TextFieldDelegate;

namespace {

// Upper-cases while typing, adds a full stop at the end, and keeps a text with a "?" in editing.
class Punctuation : public TextFieldDelegate
{
public:
    void controlTextDidChange(TextField *control, const QVariantMap &userInfo) override
    {
        auto *editor = qobject_cast<QLineEdit *>(userInfo.value(platform::NSFieldEditor).value<QObject *>());
        QCOMPARE(editor, control);
        editor->setText(editor->text().toUpper());
    }
    bool controlTextShouldEndEditing(TextField *control, QLineEdit *fieldEditor) override
    {
        if (fieldEditor->text().contains(QLatin1Char('?')))
            return false;
        control->setStringValue(fieldEditor->text() + QLatin1Char('.'));
        return true;
    }
};

// Two fields and a default button in a dialog that is never shown.
struct Form
{
    Form()
    {
        auto *column = new QVBoxLayout(&dialog);
        column->addWidget(&first);
        column->addWidget(&second);
        column->addWidget(&print);
        print.setDefault(true);
        first.setDelegate(std::make_shared<Punctuation>());
    }
    QDialog dialog;
    TextField first;
    TextField second;
    QPushButton print;
};

} // namespace

class TextFieldTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void returnCommitsThroughTheDelegate();
    void refusedReturnDoesNotReachTheDefaultButton();
    void losingTheFocusCommits();
    void contextMenuDoesNotCommit();
    void settingTheValueEndsEditing();
    void resigningInAWindowNeverShown();
    void resigningKeepsARefusedEdit();
    void commitMayDestroyOtherFields();
};

void TextFieldTest::returnCommitsThroughTheDelegate()
{
    Form form;
    QSignalSpy committed(&form.first, &TextField::stringValueCommitted);
    QTest::keyClick(&form.first, Qt::Key_Return); // nothing was typed
    QCOMPARE(committed.count(), 0);
    QTest::keyClicks(&form.first, QStringLiteral("ab"));
    QCOMPARE(form.first.text(), QStringLiteral("AB"));
    QCOMPARE(form.first.stringValue(), QString());
    QVERIFY(form.first.isEditing());
    QTest::keyClick(&form.first, Qt::Key_Enter);
    QCOMPARE(form.first.text(), QStringLiteral("AB."));
    QCOMPARE(form.first.stringValue(), QStringLiteral("AB."));
    QCOMPARE(committed.count(), 1);
    QVERIFY(form.first.endEditing());
    QCOMPARE(committed.count(), 1);
}

void TextFieldTest::refusedReturnDoesNotReachTheDefaultButton()
{
    Form form;
    form.dialog.show();
    QSignalSpy printed(&form.print, &QPushButton::clicked);
    QTest::keyClicks(&form.first, QStringLiteral("?"));
    QTest::keyClick(&form.first, Qt::Key_Return);
    QVERIFY(form.first.isEditing());
    QCOMPARE(printed.count(), 0);
    QTest::keyClick(&form.first, Qt::Key_Backspace);
    QTest::keyClick(&form.first, Qt::Key_Return);
    QVERIFY(!form.first.isEditing());
    QCOMPARE(printed.count(), 1);
}

void TextFieldTest::losingTheFocusCommits()
{
    Form form;
    form.dialog.show();
    form.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form.dialog));
    form.first.setFocus();
    QTest::keyClicks(&form.first, QStringLiteral("x"));
    QTest::keyClick(&form.first, Qt::Key_Tab);
    QVERIFY(form.second.hasFocus());
    QCOMPARE(form.first.stringValue(), QStringLiteral("X."));
}

void TextFieldTest::contextMenuDoesNotCommit()
{
    Form form;
    QTest::keyClicks(&form.first, QStringLiteral("x"));
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(&form.first, &toMenu);
    QVERIFY(form.first.isEditing());
}

void TextFieldTest::settingTheValueEndsEditing()
{
    Form form;
    QSignalSpy committed(&form.first, &TextField::stringValueCommitted);
    QTest::keyClicks(&form.first, QStringLiteral("x"));
    form.first.setStringValue(QStringLiteral("set"));
    QVERIFY(!form.first.isEditing());
    QVERIFY(form.first.endEditing());
    QCOMPARE(form.first.text(), QStringLiteral("set"));
    QCOMPARE(committed.count(), 0);
}

void TextFieldTest::resigningInAWindowNeverShown()
{
    Form form;
    form.second.setFocus();
    QTest::keyClicks(&form.first, QStringLiteral("a"));
    QTest::keyClicks(&form.second, QStringLiteral("b"));
    TextField::resignFirstResponder(&form.print);
    QCOMPARE(form.first.stringValue(), QStringLiteral("A."));
    QCOMPARE(form.second.stringValue(), QStringLiteral("b"));
    QVERIFY(!form.dialog.focusWidget());
    TextField::resignFirstResponder(nullptr);

    TextField alone; // a window of its own
    QTest::keyClicks(&alone, QStringLiteral("c"));
    TextField::resignFirstResponder(&alone);
    QCOMPARE(alone.stringValue(), QStringLiteral("c"));
}

void TextFieldTest::resigningKeepsARefusedEdit()
{
    Form form;
    form.first.setFocus();
    QTest::keyClicks(&form.first, QStringLiteral("?"));
    TextField::resignFirstResponder(&form.dialog);
    QVERIFY(form.first.isEditing());
    QCOMPARE(form.dialog.focusWidget(), &form.first);
}

void TextFieldTest::commitMayDestroyOtherFields()
{
    QWidget window;
    auto *first = new TextField(&window);
    auto *second = new TextField(&window);
    connect(first, &TextField::stringValueCommitted, second, [second] { delete second; });
    QTest::keyClicks(first, QStringLiteral("a"));
    QTest::keyClicks(second, QStringLiteral("b"));
    TextField::resignFirstResponder(first);
    QCOMPARE(window.findChildren<TextField *>(), QList<TextField *>{first});
}

QTEST_MAIN(TextFieldTest)
#include "text_field_test.moc"
