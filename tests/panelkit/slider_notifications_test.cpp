// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/slider_notifications.h"
#include "platform/binding.h"
#include "ppd/version_info.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QSlider>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString saturation = u"Saturation"_s;

const QByteArray layout =
    "<widget class=\"QSlider\" name=\"knob\"><property name=\"minimum\"><number>-5</number></property>"
    "<property name=\"maximum\"><number>5</number></property><property name=\"orientation\">"
    "<enum>Qt::Horizontal</enum></property><property name=\"bind_value\" stdset=\"0\">"
    "<string>Saturation | QVNumberTransformer_M880</string></property></widget>";

class SliderPanel : public QVPDE_M880, public QVPDELoading_M880
{
public:
    explicit SliderPanel(const SampleDialog &dialog)
    {
        TestBundle files;
        files.writeLayout(u"Sliders"_s, layout);
        dialog.manager->setBundle(files.open());
        setSupportedPPDOptionKeys({saturation});
        initWithManager(dialog.manager);
    }
    QString nibNameForModel(const QString &) const override { return u"Sliders"_s; }
    QSlider *slider() { return panelView()->findChild<QSlider *>(u"knob"_s); }
};

const QByteArray ppdBody =
    ppdOption("Saturation", {"0", "-5", "-4", "-3", "-2", "-1", "1", "2", "3", "4", "5"});

} // namespace

// Sliders must follow the panel and set it, in every build and on every system.
class SliderNotificationsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void slidersFollowAndSetTheKey()
    {
        const SampleDialog dialog(ppdBody);
        SliderPanel panel(dialog);
        QSlider *knob = panel.slider();
        panel.setValueForKey(u"-3"_s, saturation);
        QCOMPARE(knob->value(), -3);
        QTest::keyClick(knob, Qt::Key_Right);
        QCOMPARE(panel.valueForKey(saturation), QVariant(u"-2"_s));
        QCOMPARE(knob->value(), -2);
        knob->setSliderDown(true);
        knob->setSliderPosition(4);
        QTRY_COMPARE(panel.valueForKey(saturation), QVariant(u"4"_s)); // while it is held
        knob->setSliderPosition(2);
        knob->setSliderDown(false);
        QCOMPARE(panel.valueForKey(saturation), QVariant(u"2"_s));
        QCOMPARE(knob->value(), 2);
    }

    void showsTheFloatingPointValue()
    {
        const SampleDialog dialog(ppdBody);
        SliderPanel panel(dialog);
        const std::pair<QVariant, int> cases[]{{u"3dpi"_s, 3},    {u" -2.6 "_s, -3}, {u"+.4e1x"_s, 4},
                                               {u"dpi"_s, 0},     {2.4, 2},          {u"1e300"_s, 5},
                                               {u"-1e999"_s, -5}, {QVariant(), 0}};
        for (const auto &[value, shown] : cases) {
            panel.observeValueForKeyPathOfObjectChangeContext(
                saturation, &panel, {{platform::NSKeyValueChangeNewKey, value}}, panel.slider());
            QCOMPARE(panel.slider()->value(), shown);
        }
    }

    void olderPathIsTakenWhereItBelongs()
    {
        const auto system = QVPDEManager_M880::darwinVersion();
        const bool older = KELMAR_OLDER_HOSTS && system && system->compare(QVLeopardDarwinVersion) < 0;
        const SampleDialog dialog(ppdBody);
        SliderPanel panel(dialog);
        QCOMPARE(platform::Binding::infoForBinding(panel.slider(), u"value"_s) == nullptr, older);
        QCOMPARE(panel.slider()->hasTracking(), !older);

        std::unique_ptr<SliderRegistry> registry;
        QVERIFY(!QVDetachSliderBindingsInPDE(&panel, &registry)); // nothing is left to remove
        QCOMPARE(bool(registry), older);
        QVERIFY(!QVDetachSliderBindingsInPDE(&panel, nullptr));
        QVERIFY(!QVAttachNotificationsForSlidersInPDE(&panel, registry.get()));
    }

#if KELMAR_OLDER_HOSTS
    void lastSubviewDecidesTheResult()
    {
        const SampleDialog dialog(ppdBody);
        SliderPanel panel(dialog);
        QWidget view;
        QWidget box(&view);
        auto *inBox = new QSlider(&box);
        platform::Binding::bind(inBox, u"value"_s, &panel, u"SaturationChoice"_s);
        SliderRegistry registry;
        QVERIFY(QVDetachSliderBindingsInView(&view, &registry));
        QCOMPARE(registry.value(u"SaturationChoice"_s), inBox);

        platform::Binding::bind(inBox, u"value"_s, &panel, u"SaturationChoice"_s);
        QWidget last(&view);
        QVERIFY(!QVDetachSliderBindingsInView(&view, &registry));
        QVERIFY(!platform::Binding::infoForBinding(inBox, u"value"_s));
    }
#endif
};

QTEST_MAIN(SliderNotificationsTest)
#include "slider_notifications_test.moc"
