// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/color_settings_1_panel.h"

#include "device/advanced_color_settings.h"
#include "panelkit/ppd_popup_button.h"
#include "panels/color_settings_2_panel.h"
#include "panels/view_switch.h"
#include "panels/view_utilities.h"
#include "panels/widgets/notice.h"
#include "panels/widgets/profile_popup.h"
#include "plugin/manager.h"
#include "tests/panels/panel_fixture.h"

#include <QCheckBox>
#include <QGraphicsEffect>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

QWidget *basicView(QVPDE_M880 *panel)
{
    return widget<QWidget>(panel->panelView(), "basicView");
}

QWidget *advancedView(QVPDE_M880 *panel)
{
    return widget<QWidget>(panel->panelView(), "advancedView");
}

bool isAtRest(const QWidget *shown, const QWidget *hidden)
{
    return !ViewSwitch::runningIn(shown->parentWidget()) && shown->isVisible() && !hidden->isVisible() &&
           shown->geometry() == shown->parentWidget()->rect() && !shown->graphicsEffect() &&
           !hidden->graphicsEffect();
}

} // namespace

class ColorSettings1PanelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void centring();
    void framesOfASwitch();
    void switchesWithoutBlocking();
    void turnsRoundHalfWay();
    void showingAndResizingDuringASwitch();
    void imageTypeLeadsToTheAdvancedView();
    void plainModelHasNoAdvancedView();
    void unreachablePrinterIsSaidInPlace();
    void unnamedNumberIsKept();
    void longNameIsCutAndWholeInTheTooltip();
};

void ColorSettings1PanelTest::centring()
{
    QWidget superview;
    QWidget view(&superview);
    view.resize(400, 300);
    superview.resize(501, 401);
    QCOMPARE(QVViewUtilities_M880::centeredInSuperviewFrame(&view), QRectF(50.5, 50.5, 400, 300));
    superview.resize(300, 300); // smaller than the view
    QVViewUtilities_M880::centerInSuperview(&view);
    QCOMPARE(view.geometry(), QRect(-50, 0, 400, 300));
    QCOMPARE(QVViewUtilities_M880::centeredInSuperviewFrame(&superview), QRectF(0, 0, 0, 0));
}

void ColorSettings1PanelTest::framesOfASwitch()
{
    const QRect basic(20, 35, 400, 300);
    const QRect advanced(20, 10, 400, 350);
    const ViewMove basicLeaves{{20, 0, 400, 300}, {20, 300, 400, 300}};
    const ViewMove advancedComes{{20, -350, 400, 350}, {20, 0, 400, 350}};
    const auto reversed = [](const ViewMove &move) { return ViewMove{move.endFrame, move.startFrame}; };
    const auto there = framesForSwitch(basic, advanced, SwitchDirection::ToAdvanced);
    const auto back = framesForSwitch(advanced, basic, SwitchDirection::Back);
    QCOMPARE(there, (ViewSwitchFrames{basicLeaves, advancedComes}));
    QCOMPARE(back, (ViewSwitchFrames{reversed(advancedComes), reversed(basicLeaves)}));
}

void ColorSettings1PanelTest::switchesWithoutBlocking()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    const QWidget *view = dialog.show(panel);
    QWidget *basic = basicView(panel);
    QWidget *advanced = advancedView(panel);
    QVERIFY(isAtRest(basic, advanced));
    panel->goBack(nullptr); // already the current view
    QVERIFY(!ViewSwitch::runningIn(view));

    QElapsedTimer time;
    time.start();
    panel->goToAdvanced(nullptr);
    QCOMPARE(panel->currentView(), advanced);
    const QPointer<ViewSwitch> running = ViewSwitch::runningIn(view);
    QVERIFY(running);
    QCOMPARE(running->frames(), framesForSwitch(view->rect(), view->rect(), SwitchDirection::ToAdvanced));
    QVERIFY(basic->isVisible() && advanced->isVisible());
    QTRY_VERIFY(running && running->progress() > 0.3);
    QVERIFY(basic->y() > 0 && advanced->y() < 0);
    QVERIFY(basic->graphicsEffect() && advanced->graphicsEffect());
    QTRY_VERIFY(isAtRest(advanced, basic));
    QVERIFY2(time.elapsed() >= 450, qPrintable(QString::number(time.elapsed())));

    QTest::mouseClick(widget<QPushButton>(view, "backButton"), Qt::LeftButton);
    QCOMPARE(panel->currentView(), basic);
    QVERIFY(basic->y() > 0); // starts from its current position
    QTRY_VERIFY(isAtRest(basic, advanced));
}

void ColorSettings1PanelTest::turnsRoundHalfWay()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    const QWidget *view = dialog.show(panel);
    QWidget *basic = basicView(panel);
    QWidget *advanced = advancedView(panel);
    panel->goToAdvanced(nullptr);
    for (QWidget *incoming : {basic, advanced, basic}) {
        const QPointer<ViewSwitch> running = ViewSwitch::runningIn(view);
        QTRY_VERIFY(running && running->progress() > 0.25);
        QWidget *outgoing = incoming == basic ? advanced : basic;
        const auto direction = incoming == basic ? SwitchDirection::Back : SwitchDirection::ToAdvanced;
        const auto frames = framesForSwitch(outgoing->geometry(), incoming->geometry(), direction);
        QElapsedTimer time;
        time.start();
        panel->animateViewIn(incoming);
        QVERIFY(!running); // one at a time
        QCOMPARE(panel->currentView(), incoming);
        const ViewSwitch *next = ViewSwitch::runningIn(view);
        QCOMPARE(next->frames(), frames);
        QVERIFY2(next->progress() < 0.1 || time.elapsed() > 50,
                 qPrintable(QString::number(next->progress())));
    }
    QTRY_VERIFY(isAtRest(basic, advanced));
}

void ColorSettings1PanelTest::showingAndResizingDuringASwitch()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    QWidget *view = dialog.show(panel);
    panel->goToAdvanced(nullptr);
    view->resize(view->width() + 80, view->height() + 60);
    QTRY_VERIFY(isAtRest(advancedView(panel), basicView(panel)));

    auto *stray = new QWidget(view);
    stray->show();
    panel->goBack(nullptr);
    panel->goToAdvanced(nullptr);
    panel->willShow();
    QCOMPARE(panel->currentView(), basicView(panel));
    QVERIFY(isAtRest(basicView(panel), advancedView(panel)));
    QVERIFY(!stray->isVisible());
}

void ColorSettings1PanelTest::imageTypeLeadsToTheAdvancedView()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    const QWidget *view = dialog.show(panel);
    const auto *button = widget<QPushButton>(view, "advancedButton");
    QVERIFY(button->isVisible() && !button->isEnabled());
    QSignalSpy changes(panel, &platform::KeyValueObject::valueDidChange);

    auto *imageType = widget<QVPopUpButton_M880>(view, "imageType");
    imageType->setFocus();
    QTest::keyClick(imageType, Qt::Key_End); // "Advanced"
    QCOMPARE(panel->currentView(), advancedView(panel));
    QVERIFY(panel->advancedSelected());
    QVERIFY(advancedView(panel)->isAncestorOf(view->focusWidget()));
    QTRY_VERIFY(isAtRest(advancedView(panel), basicView(panel)));

    panel->setValueForKey(u"General"_s, u"ImageType"_s);
    QCOMPARE(panel->currentView(), advancedView(panel));
    QVERIFY(!panel->advancedSelected());
    QCOMPARE(changes.count(QVariantList{u"advancedSelected"_s}), 2);
    panel->setAdvancedSelected(true);
    QVERIFY(!panel->advancedSelected());

    // From any panel that uses the dialog's notification center.
    panel->willShow();
    panel->manager()->notificationCenter()->postNotification(
        u"ImageType"_s, nullptr, {{platform::NSKeyValueChangeNewKey, u"Advanced"_s}});
    QCOMPARE(panel->currentView(), advancedView(panel));
}

void ColorSettings1PanelTest::plainModelHasNoAdvancedView()
{
    PanelFixture dialog("kel310");
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    const QStringList keys{u"ColorType"_s, u"Halftone"_s,       u"TonerSave"_s,
                           u"ImageType"_s, u"BlackOverPrint"_s, u"PureBlackGray"_s};
    QCOMPARE(panel->supportedPPDOptionKeys(), keys);
    const QWidget *view = dialog.show(panel);
    for (const char *name : {"advancedButton", "resolutionLabel", "resolution"})
        QVERIFY2(!widget<QWidget>(view, name)->isVisible(), name);

    QTest::mouseClick(widget<QCheckBox>(view, "tonerSave"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(!widget<QVPopUpButton_M880>(view, "halftone")->isItemEnabled(1)); // conflicts with toner save
    panel->reloadDefaultSNMPValues(nullptr);
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(dialog.marked(u"TonerSave"_s), u"True"_s);
    QVERIFY(dialog.host.blockingWork.isEmpty()); // no device was queried
    panel->setValueForKey(u"False"_s, u"TonerSave"_s);
    QVERIFY(!widget<QCheckBox>(view, "tonerSave")->isChecked());
}

void ColorSettings1PanelTest::unreachablePrinterIsSaidInPlace()
{
    PanelFixture dialog("kelm880", QLocale(QLocale::German));
    dialog.host.settings.setValue(QVRgbSourceProfileIndexKey, u"3"_s);
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    QWidget *view = dialog.show(panel); // the session has no printer
    QCOMPARE(dialog.host.blockingWork, QStringList{u"Farbprofile werden vom Drucker abgefragt\u00A0…"_s});
    // The notice next to the profiles is not visible yet, and needs no more height than it will have at this
    // width.
    view->resize(700, view->height());
    QTRY_COMPARE(view->minimumSizeHint().height(), advancedView(panel)->heightForWidth(700));
    panel->setCurrentView(advancedView(panel));
    const auto *notice = widget<QVNotice_M880>(view, "unavailableNotice");
    QVERIFY(notice->isVisible());
    QVERIFY2(notice->text().startsWith(u"Der Drucker ist nicht erreichbar"), qPrintable(notice->text()));
    for (const char *name :
         {"rgbSource", "cmykSource", "cmykDestination", "renderingIntent", "applyToDeviceColorOnly"})
        QVERIFY2(!widget<QWidget>(view, name)->isEnabled(), name);
    for (const char *name : {"reloadButton", "backButton"})
        QVERIFY2(widget<QWidget>(view, name)->isEnabled(), name);

    panel->saveValuesAndReturnError(nullptr);
    QVERIFY(!dialog.host.settings.value(QVRgbSourceProfileIndexKey).isValid());
    QCOMPARE(dialog.host.blockingWork.size(), 1); // saving does not query the device
}

// A row without a name has a number but is not in the list.
void ColorSettings1PanelTest::unnamedNumberIsKept()
{
    QVProfilePopUp_M880 popUp;
    popUp.setUnnamedText(u"Profile %1"_s);
    QSignalSpy chosen(&popUp, &QVProfilePopUp_M880::profileChosen);
    popUp.setSelectedProfile(7U);
    popUp.setProfileNames(QStringList{u"First"_s, u"Third"_s});
    popUp.setProfileRows(QVariantList{1U, 3U});
    QCOMPARE(popUp.currentText(), u"Profile 7"_s);
    QCOMPARE(popUp.count(), 3);
    popUp.setSelectedProfile(3U);
    QCOMPARE(popUp.currentText(), u"Third"_s);
    QCOMPARE(popUp.count(), 2);
    QVERIFY(chosen.isEmpty());
    QTest::keyClick(&popUp, Qt::Key_Up);
    QCOMPARE(popUp.selectedProfile().toUInt(), 1U);
    QCOMPARE(chosen.size(), 1);
}

void ColorSettings1PanelTest::longNameIsCutAndWholeInTheTooltip()
{
    QVProfilePopUp_M880 popUp;
    popUp.resize(120, popUp.sizeHint().height());
    const auto picture = [&](const QString &name) {
        popUp.setProfileNames(QStringList{name});
        popUp.setSelectedProfile(1U);
        return popUp.grab().toImage();
    };
    // The elided part is not shown.
    const QString name = u"Coated <b>paper</b>\nand "_s + QString(100, u'x');
    QCOMPARE(picture(name), picture(name + u"y"_s));
    QVERIFY(picture(u"Coated"_s) != picture(u"Coated\npaper"_s));
    QCOMPARE(picture(u"Coated paper"_s), picture(u"Coated\npaper"_s));
    picture(name);
    QHelpEvent hover(QEvent::ToolTip, {}, popUp.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&popUp, &hover);
    const QString tip = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    QCOMPARE(tip.simplified(), name.simplified());
    QToolTip::hideText();
}

QTEST_MAIN(ColorSettings1PanelTest)
#include "color_settings_1_panel_test.moc"
