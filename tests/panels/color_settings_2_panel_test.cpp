// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/color_settings_2_panel.h"

#include "panelkit/ppd_popup_button.h"
#include "panels/color_settings_1_panel.h"
#include "panels/widgets/choice_slider.h"
#include "panels/widgets/notice.h"
#include "panels/widgets/signed_value_label.h"
#include "platform/binding.h"
#include "plugin/manager.h"
#include "ppd/version_info.h"
#include "tests/panels/panel_fixture.h"
#include "tests/support/inline_ppd.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QStyleOptionSlider>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList balanceKeys{u"ColorBalanceCyan"_s, u"ColorBalanceMagenta"_s, u"ColorBalanceYellow"_s,
                              u"ColorBalanceBlack"_s};

// The position of a slider's thumb for a number.
QPoint thumbAt(const QSlider *slider, int number)
{
    struct Access : QSlider
    {
        using QSlider::initStyleOption;
    };
    QStyleOptionSlider option;
    (slider->*(&Access::initStyleOption))(&option);
    option.sliderPosition = number;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

void drag(QSlider *slider, int from, int to)
{
    QTest::mousePress(slider, Qt::LeftButton, {}, thumbAt(slider, from));
    QTest::mouseMove(slider, (thumbAt(slider, from) + thumbAt(slider, to)) / 2);
    QTest::mouseMove(slider, thumbAt(slider, to));
    QTest::mouseRelease(slider, Qt::LeftButton, {}, thumbAt(slider, to));
}

QString value(QVPDE_M880 *panel, const QString &key)
{
    return panel->valueForKey(key).toString();
}

// Sharpness in three coarse steps, and no other option of the panel.
InlinePpd coarsePpd()
{
    return InlinePpd(ppdOption("SharpnessVRN/Sharpness", {"0", "-4", "4"}));
}

} // namespace

class ColorSettings2PanelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void modelWithoutBackground();
    void slidersMoveByKeyboardAndMouse();
    void neutralButtons();
    void colorModeResetsAndAllowsBalance();
    void onlyAnAnnouncedColorModeCounts();
    void neverOnAPositionWithoutChoice_data();
    void neverOnAPositionWithoutChoice();
    void foreignValueIsShownNotChanged_data();
    void foreignValueIsShownNotChanged();
    void keywordWithASignIsWritten();
    void sliderOfAMissingOptionStandsStill();
    void signedTexts();
};

void ColorSettings2PanelTest::modelWithoutBackground()
{
    for (const auto &[ppd, options] : {std::pair("kelm880", 9), std::pair("kelo2600", 8)}) {
        PanelFixture dialog(ppd);
        auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
        const QWidget *view = dialog.show(panel);
        QCOMPARE(panel->supportedPPDOptionKeys().size(), options);
        QCOMPARE(view->findChildren<QSlider *>().size(), options);
        QCOMPARE(view->findChild<QSlider *>(u"backgroundSlider"_s) != nullptr, options == 9);
    }
}

void ColorSettings2PanelTest::slidersMoveByKeyboardAndMouse()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    QWidget *view = dialog.show(panel);
    auto *slider = widget<QVChoiceSlider_M880>(view, "sharpnessSlider");
    const auto *label = widget<QVSignedValueLabel_M880>(view, "sharpnessValue");

    // On an older host the panel drives the sliders itself.
    const bool isOlder =
        KELMAR_OLDER_HOSTS && QVPDEManager_M880::darwinVersion()->compare(QVLeopardDarwinVersion) < 0;
    QCOMPARE(platform::Binding::infoForBinding(slider, u"value"_s) == nullptr, isOlder);

    QTest::keyClick(view, Qt::Key_S, Qt::AltModifier);
    QVERIFY(slider->hasFocus());
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"1"_s);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"3"_s);
    QCOMPARE(label->text(), u"+3"_s);
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(slider);
    QCOMPARE(heard->text(QAccessible::Value), u"+3"_s);
    heard->valueInterface()->setCurrentValue(4);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"4"_s);
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"-5"_s);
    drag(slider, -5, 2);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"2"_s);

    panel->setValueForKey(u"-4"_s, u"SharpnessVRN"_s);
    QCOMPARE(slider->value(), -4);
    QCOMPARE(label->text(), u"−4"_s);
}

void ColorSettings2PanelTest::neutralButtons()
{
    PanelFixture dialog("kelm880");
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    const QWidget *view = dialog.show(panel);
    auto *contrast = widget<QAbstractButton>(view, "contrastNeutral");
    QVERIFY(!contrast->isEnabled());
    for (const QString &key : panel->supportedPPDOptionKeys())
        panel->setValueForKey(u"3"_s, key);
    QVERIFY(contrast->isEnabled());
    QTest::mouseClick(contrast, Qt::LeftButton);
    QCOMPARE(value(panel, u"ContrastVRN"_s), u"0"_s);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), u"3"_s);
    QVERIFY(!contrast->isEnabled());

    QTest::mouseClick(widget<QAbstractButton>(view, "resetAllButton"), Qt::LeftButton);
    for (const QString &key : panel->supportedPPDOptionKeys())
        QCOMPARE(value(panel, key), u"0"_s);
}

void ColorSettings2PanelTest::colorModeResetsAndAllowsBalance()
{
    PanelFixture dialog("kelm880");
    auto *colors = dialog.panel<QVPDEColorSettings1_M880>();
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    const QWidget *view = dialog.show(panel);
    const auto *slider = widget<QSlider>(view, "yellowSlider");
    const auto *notice = widget<QVNotice_M880>(view, "colorBalanceNotice");
    for (const QString &key : balanceKeys)
        panel->setValueForKey(u"2"_s, key);
    panel->setValueForKey(u"2"_s, u"SharpnessVRN"_s);
    panel->saveValuesAndReturnError(nullptr);
    QVERIFY(!notice->isVisible());
    dialog.host.told.clear();

    colors->setValueForKey(u"Mono"_s, u"ColorType"_s);
    QVERIFY(!panel->colorBalanceAllowed());
    QVERIFY(!slider->isEnabled());
    QVERIFY(widget<QSlider>(view, "sharpnessSlider")->isEnabled());
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), u"Color balance is not available while “Color Mode” is “Black and White”."_s);
    // The job contains the change before a save.
    for (const QString &key : balanceKeys) {
        QCOMPARE(value(panel, key), u"0"_s);
        QCOMPARE(dialog.marked(key), u"0"_s);
        QVERIFY(std::ranges::count(dialog.host.told, std::pair<QString, QVariant>(key, u"0"_s)) == 1);
    }
    QCOMPARE(dialog.marked(u"SharpnessVRN"_s), u"2"_s);

    dialog.host.told.clear();
    colors->setValueForKey(u"Color"_s, u"ColorType"_s);
    QVERIFY(panel->colorBalanceAllowed());
    QVERIFY(slider->isEnabled());
    QVERIFY(!notice->isVisible());
    QCOMPARE(value(panel, u"ColorBalanceYellow"_s), u"0"_s);
    QVERIFY(dialog.host.told.empty());
}

void ColorSettings2PanelTest::onlyAnAnnouncedColorModeCounts()
{
    InlinePpd ppd(ppdOption("ColorType", {"Mono", "Color"}) + ppdOption("ColorBalanceCyan", {"0", "1"}) +
                  ppdConstraint("ColorType Mono", "ColorBalanceCyan 1"));
    PanelFixture dialog(ppd.get());
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    panel->restoreValuesAndReturnError(nullptr);
    QVERIFY(panel->colorBalanceAllowed());
    dialog.panel<QVPDEColorSettings1_M880>()->restoreValuesAndReturnError(nullptr);
    QVERIFY(!panel->colorBalanceAllowed());
}

void ColorSettings2PanelTest::neverOnAPositionWithoutChoice_data()
{
    QTest::addColumn<QList<int>>("moves"); // keys, and numbers to which the thumb is dragged
    QTest::addColumn<QList<int>>("reached");
    QTest::newRow("to a choice") << QList<int>{4} << QList{4};
    QTest::newRow("nearest above") << QList<int>{3} << QList{4};
    QTest::newRow("nearest below") << QList<int>{-5} << QList{-4};
    QTest::newRow("back to where it was") << QList<int>{1} << QList{0};
    QTest::newRow("half way stays") << QList<int>{2} << QList{0};
    QTest::newRow("steps skip") << QList<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left} << QList{4, 4, 0};
    QTest::newRow("pages and ends") << QList<int>{Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}
                                    << QList{-4, -4, 4};
}

void ColorSettings2PanelTest::neverOnAPositionWithoutChoice()
{
    QFETCH(const QList<int>, moves);
    const InlinePpd ppd = coarsePpd();
    PanelFixture dialog(ppd.get());
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    auto *slider = widget<QVChoiceSlider_M880>(dialog.show(panel), "sharpnessSlider");
    const QStringList choices{u"0"_s, u"4"_s, u"-4"_s};
    connect(panel, &platform::KeyValueObject::valueDidChange, this, [&](const QString &key) {
        QVERIFY(key != u"SharpnessVRN" || choices.contains(value(panel, key)));
    });
    slider->setFocus();
    QList<int> reached;
    for (const int move : moves) {
        if (move > slider->maximum())
            QTest::keyClick(slider, Qt::Key(move));
        else
            drag(slider, 0, move);
        reached += value(panel, u"SharpnessVRN"_s).toInt();
        QCOMPARE(slider->value(), reached.last());
    }
    QTEST(reached, "reached");
}

void ColorSettings2PanelTest::foreignValueIsShownNotChanged_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("thumb");
    QTest::newRow("beyond the range") << u"9"_s << u"+9"_s << 5;
    QTest::newRow("between choices") << u"3"_s << u"+3"_s << 3;
    QTest::newRow("no number") << u"Custom"_s << u"0"_s << 0;
}

void ColorSettings2PanelTest::foreignValueIsShownNotChanged()
{
    QFETCH(const QString, choice);
    const InlinePpd ppd = coarsePpd();
    PanelFixture dialog(ppd.get());
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    QWidget *view = dialog.show(panel);
    panel->setValueForKey(choice, u"SharpnessVRN"_s);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), choice);
    QTEST(widget<QVSignedValueLabel_M880>(view, "sharpnessValue")->text(), "label");
    QTEST(widget<QVChoiceSlider_M880>(view, "sharpnessSlider")->value(), "thumb");
    view->resize(view->width() + 50, view->height());
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(value(panel, u"SharpnessVRN"_s), choice);
}

void ColorSettings2PanelTest::keywordWithASignIsWritten()
{
    // The sliders of older hosts write plain numbers.
    const QByteArray most = KELMAR_OLDER_HOSTS ? "1" : "+1";
    const InlinePpd ppd(ppdOption("SharpnessVRN/Sharpness", {"-1", "0", most}));
    PanelFixture dialog(ppd.get());
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    auto *slider = widget<QVChoiceSlider_M880>(dialog.show(panel), "sharpnessSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_End);
    panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(dialog.marked(u"SharpnessVRN"_s), QString::fromLatin1(most));
}

void ColorSettings2PanelTest::sliderOfAMissingOptionStandsStill()
{
    const InlinePpd ppd = coarsePpd();
    PanelFixture dialog(ppd.get());
    auto *panel = dialog.panel<QVPDEColorSettings2_M880>();
    auto *slider = widget<QVChoiceSlider_M880>(dialog.show(panel), "cyanSlider");
    QVERIFY(!slider->isEnabled());
    panel->setColorBalanceAllowed(true);
    QVERIFY(!slider->isEnabled());
    slider->setValue(3);
    QCOMPARE(slider->value(), 0);
}

void ColorSettings2PanelTest::signedTexts()
{
    const auto text = &QVSignedValueLabel_M880::textForValue;
    QCOMPARE(QStringList({text(3), text(0), text(-2)}), QStringList({u"+3"_s, u"0"_s, u"−2"_s}));
    QCOMPARE(text(std::numeric_limits<int>::min()), u"−2147483648"_s);
}

QTEST_MAIN(ColorSettings2PanelTest)
#include "color_settings_2_panel_test.moc"
