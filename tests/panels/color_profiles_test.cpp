// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/advanced_color_settings.h"
#include "panels/color_settings_1_panel.h"
#include "panels/widgets/notice.h"
#include "panels/widgets/profile_popup.h"
#include "tests/panels/panel_fixture.h"
#include "tests/support/private_network.h"
#include "tests/support/simulated_printer.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Row 2 of the CMYK sources has no name.
const QByteArray device =
    "[rgb-source]\n1 = sRGB\n2 = Adobe <b>RGB</b>\n"
    "[cmyk-source]\n1 = ISO Coated\n2 =\n3 = Japan Color\n"
    "[cmyk-destination]\n1 = Plain Paper\n2 = Glossy Paper\n"
    "[defaults]\nrgb-source = 1\ncmyk-source = 2\ncmyk-destination = 1\nrendering-intent = 9\n";

void press(QComboBox *popUp, Qt::Key key)
{
    popUp->setFocus();
    QTest::keyClick(popUp, key);
}

} // namespace

// The panel and a real SNMP agent in a private network.
class ColorProfilesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void choicesTravelWithTheJob();
};

void ColorProfilesTest::initTestCase()
{
    const QString whyNot = enterPrivateNetwork();
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
}

void ColorProfilesTest::choicesTravelWithTheJob()
{
    const SimulatedPrinter printer("127.0.0.2", device);
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    PanelFixture dialog("kelm880");
    dialog.host.session.printer = platform::Printer{u"orb"_s, u"socket:///away"_s};
    auto *panel = dialog.panel<QVPDEColorSettings1_M880>();
    const QWidget *view = dialog.show(panel);
    panel->setCurrentView(widget<QWidget>(view, "advancedView"));
    // A printer that did not respond can be queried again.
    QVERIFY(widget<QVNotice_M880>(view, "unavailableNotice")->isVisible());
    dialog.host.session.printer->deviceUri = u"socket://127.0.0.2:9100"_s;
    auto *reload = widget<QPushButton>(view, "reloadButton");
    QTest::mouseClick(reload, Qt::LeftButton);
    QVERIFY2(!widget<QVNotice_M880>(view, "unavailableNotice")->isVisible(),
             qPrintable(panel->advancedColorSettingsManager()->snmpUnavailableReason()));
    auto *rgb = widget<QVProfilePopUp_M880>(view, "rgbSource");
    auto *cmyk = widget<QVProfilePopUp_M880>(view, "cmykSource");
    auto *destination = widget<QVProfilePopUp_M880>(view, "cmykDestination");
    auto *intent = widget<QVProfilePopUp_M880>(view, "renderingIntent");
    QCOMPARE(rgb->currentText(), u"sRGB"_s);
    QCOMPARE(cmyk->currentText(), u"Profile 2"_s);
    QCOMPARE(destination->currentText(), u"Plain Paper"_s);
    QCOMPARE(intent->currentText(), u"Intent 9"_s);

    // Unchanged values of the device are kept.
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(dialog.host.settings.value(QVCmykSourceProfileIndexKey).toString(), u"2"_s);
    QCOMPARE(dialog.host.settings.value(QVRenderingIntentKey).toString(), u"9"_s);

    press(rgb, Qt::Key_End);
    press(destination, Qt::Key_End);
    press(cmyk, Qt::Key_Home);
    press(cmyk, Qt::Key_Down);
    QTest::mouseClick(widget<QCheckBox>(view, "applyToDeviceColorOnly"), Qt::LeftButton, {}, QPoint(8, 8));
    QStringList profilesWhenTold; // the device's settings are saved first
    dialog.host.onTold = [&](const QString &) {
        profilesWhenTold += dialog.host.settings.value(QVRgbSourceProfileIndexKey).toString();
    };
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(profilesWhenTold.value(0), u"2"_s);
    const auto saved = [&](const QString &key) { return dialog.host.settings.value(key).toString(); };
    QCOMPARE(saved(QVCmykSourceProfileIndexKey), u"3"_s);
    QCOMPARE(saved(QVCmykDestinationProfileIndexKey), u"2"_s);
    QCOMPARE(saved(QVApplyToDeviceColorOnlyKey), u"1"_s);

    // Querying again restores the device's selections, and notifies the host.
    QTest::mouseClick(reload, Qt::LeftButton);
    QCOMPARE(rgb->currentText(), u"sRGB"_s);
    QCOMPARE(dialog.host.blockingWork.size(), 3);

    // The next dialog of this job: the stored destination is restored as the source, as in earlier versions.
    panel->restoreValuesAndReturnError(nullptr);
    QCOMPARE(rgb->currentText(), u"Adobe <b>RGB</b>"_s);
    QCOMPARE(cmyk->currentText(), u"Profile 2"_s);
    QCOMPARE(destination->currentText(), u"Plain Paper"_s);
    QVERIFY(widget<QCheckBox>(view, "applyToDeviceColorOnly")->isChecked());
}

QTEST_MAIN(ColorProfilesTest)
#include "color_profiles_test.moc"
