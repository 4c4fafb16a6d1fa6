// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/print_mode_panel.h"

#include "panelkit/ppd_popup_button.h"
#include "platform/text_field.h"
#include "tests/panels/panel_fixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class PrintModePanelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void modelWithoutPassword();
    void keyboardDrivesModeAndPassword();
    void departmentCodeIsTypedWhereItIsOn();
    void saveCommitsWhatIsBeingTyped();
    void codesAreTheirDigits();
    void summaryShowsCodesBehindTheirChoice();
    void greyedChoiceSaysWhy();
};

void PrintModePanelTest::modelWithoutPassword()
{
    PanelFixture dialog("kelo110");
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    QCOMPARE(panel->supportedPPDOptionKeys().size(), 9);
    QCOMPARE(panel->supportedPPDOptionKeys().last(), u"DCDigit5"_s);
    panel->setPrivatePassword(u"12345"_s);
    QCOMPARE(panel->privatePassword(), u"00000"_s);

    const QWidget *view = dialog.show(panel);
    for (const char *name : {"passwordLabel", "passwordHint", "passwordField"})
        QVERIFY2(!widget<QWidget>(view, name)->isVisible(), name);
    QVERIFY(widget<platform::TextField>(view, "departmentCodeField")->isVisible());
    // A value that this model's PPD does not offer must not cause an error in the summary.
    panel->setValueForKey(u"Private"_s, u"PrintMode"_s);
    QCOMPARE(panel->summaryForKey(u"PrintMode"_s), u"Normal"_s);
}

void PrintModePanelTest::keyboardDrivesModeAndPassword()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    QCOMPARE(panel->supportedPPDOptionKeys().size(), 14);
    QWidget *view = dialog.show(panel);
    auto *password = widget<platform::TextField>(view, "passwordField");
    QVERIFY(password->isVisible() && !password->isEnabled());

    QTest::keyClick(view, Qt::Key_M, Qt::AltModifier); // the label's access key
    QVERIFY(widget<QVPopUpButton_M880>(view, "printModePopUp")->hasFocus());
    QTest::keyClick(view->focusWidget(), Qt::Key_Down);
    QCOMPARE(panel->valueForKey(u"PrintMode"_s).toString(), u"Private"_s);
    QVERIFY(password->isEnabled());

    QTest::keyClick(view->focusWidget(), Qt::Key_Tab);
    QVERIFY(password->hasFocus());
    QTest::keyClicks(password, u"1234"_s);
    QCOMPARE(panel->privatePassword(), u"00000"_s); // not before editing ends
    QTest::keyClick(password, Qt::Key_Return);
    QCOMPARE(panel->privatePassword(), u"01234"_s);
    QCOMPARE(password->text(), u"01234"_s);

    QTest::keyClick(widget<QVPopUpButton_M880>(view, "printModePopUp"), Qt::Key_Up);
    QVERIFY(!password->isEnabled());
    QCOMPARE(panel->privatePassword(), u"01234"_s);
}

void PrintModePanelTest::departmentCodeIsTypedWhereItIsOn()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    const QWidget *view = dialog.show(panel);
    auto *field = widget<platform::TextField>(view, "departmentCodeField");
    QVERIFY(!field->isEnabled());
    const QString whyNot = u"Not available while “Department Code” is “Off”."_s;
    QCOMPARE(field->toolTip(), whyNot);
    QCOMPARE(field->accessibleDescription(), whyNot);
    panel->setValueForKey(u"True"_s, u"DeptCode"_s);
    QVERIFY(field->toolTip().startsWith(u"Five digits"_s));
    panel->setDepartmentCode(u"01230"_s);
    QCOMPARE(field->text(), u"01230"_s);
    QTest::mouseDClick(field, Qt::LeftButton); // selects the existing code
    QTest::keyClicks(field, u"12a34"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    QCOMPARE(panel->departmentCode(), u"01234"_s);
}

void PrintModePanelTest::saveCommitsWhatIsBeingTyped()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    const QWidget *view = dialog.show(panel);
    panel->setValueForKey(u"Private"_s, u"PrintMode"_s);
    auto *password = widget<platform::TextField>(view, "passwordField");
    QTest::mouseClick(password, Qt::LeftButton);
    password->selectAll();
    QTest::keyClicks(password, u"54321"_s);
    dialog.host.told.clear();

    QVERIFY(panel->saveValuesAndReturnError(nullptr));
    QCOMPARE(dialog.marked(u"PrintMode"_s), u"Private"_s);
    QStringList told;
    for (const auto &[keyword, choice] : dialog.host.told) {
        if (keyword.startsWith(u"DINDigit"))
            told += choice.toString();
    }
    QCOMPARE(told.join(QString()), u"54321"_s);
    QCOMPARE(dialog.marked(u"DINDigit1"_s), u"5"_s);
}

void PrintModePanelTest::codesAreTheirDigits()
{
    const PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    QSignalSpy changes(panel, &platform::KeyValueObject::valueDidChange);
    panel->setDepartmentCode(u"01230"_s);
    QCOMPARE(changes.count(QVariantList{u"departmentCode"_s}), 5); // once for each digit
    QCOMPARE(panel->valueForKey(u"DCDigit4"_s).toString(), u"3"_s);
    QCOMPARE(panel->privatePassword(), u"00000"_s);

    changes.clear();
    panel->setValueForKey(u"7"_s, u"DINDigit5"_s);
    QVERIFY(changes.contains(QVariantList{u"privatePassword"_s}));
    QCOMPARE(panel->valueForKey(u"privatePassword"_s).toString(), u"00007"_s);
}

void PrintModePanelTest::summaryShowsCodesBehindTheirChoice()
{
    PanelFixture dialog("kelm880", QLocale(QLocale::English));
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    panel->restoreValuesAndReturnError(nullptr);
    panel->setValueForKey(u"Private"_s, u"PrintMode"_s);
    panel->setPrivatePassword(u"12345"_s);
    panel->setValueForKey(u"True"_s, u"DeptCode"_s);
    panel->setDepartmentCode(u"01230"_s);
    // The text is that of the last save.
    QCOMPARE(panel->summaryForKey(u"PrintMode"_s), u"Normal (12345)"_s);
    panel->saveValuesAndReturnError(nullptr);

    const QMap<QString, QString> expected{{u"Print Mode"_s, u"Private (12345)"_s},
                                          {u"Department Code"_s, u"On (01230)"_s},
                                          {u"Distinguish Thin Lines"_s, u"On"_s},
                                          {u"Skip Blank Pages"_s, u"Off"_s}};
    QCOMPARE(panel->summaryInfo(), expected);
    panel->setValueForKey(u"False"_s, u"DeptCode"_s);
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(panel->summaryForKey(u"DeptCode"_s), u"Off"_s);
}

void PrintModePanelTest::greyedChoiceSaysWhy()
{
    PanelFixture dialog("kelm880", QLocale(QLocale::German));
    auto *panel = dialog.panel<QVPDEPrintMode_M880>();
    const QWidget *view = dialog.show(panel);
    const auto *mode = widget<QVPopUpButton_M880>(view, "printModePopUp");
    const int proof = mode->findText(u"Probedruck"_s);
    QVERIFY(mode->isItemEnabled(proof));
    panel->setValueForKey(u"True"_s, u"BlankPage"_s);
    QVERIFY(!mode->isItemEnabled(proof));
    const QString why = mode->itemData(proof, Qt::ToolTipRole).toString();
    QVERIFY2(why.contains(u"„Leere Seiten überspringen“ auf „Ein“"), qPrintable(why));
}

QTEST_MAIN(PrintModePanelTest)
#include "print_mode_panel_test.moc"
