// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/slider_notifications.h"
#include "platform/binding.h"
#include "plugin/version_info.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QSlider>
#include <QTest>

namespace {

const QString saturation = QStringLiteral("Saturation");

QByteArray slider(const QByteArray &name, const QByteArray &binding)
{
    return "<widget class=\"QSlider\" name=\"" + name +
           "\"><property name=\"minimum\"><number>-5</number></property>"
           "<property name=\"maximum\"><number>5</number></property>"
           "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>" +
           (binding.isEmpty()
                ? QByteArray()
                : "<property name=\"bind_value\" stdset=\"0\"><string>" + binding + "</string></property>") +
           "</widget>";
}

class SliderPanel : public QVPDE_M880, public QVPDELoading_M880
{
public:
    SliderPanel(const SampleDialog &dialog, const QByteArray &layout)
    {
        TestBundle files;
        files.writeLayout(QStringLiteral("Sliders"), layout);
        dialog.manager->setBundle(files.open());
        setSupportedPPDOptionKeys({saturation});
        initWithManager(dialog.manager);
    }
    QString nibNameForModel(const QString &) const override { return QStringLiteral("Sliders"); }
    QSlider *slider() { return panelView()->findChild<QSlider *>(QStringLiteral("knob")); }
};

const QByteArray ppdBody =
    ppdOption("Saturation", {"0", "-5", "-4", "-3", "-2", "-1", "1", "2", "3", "4", "5"});
const QByteArray layout = slider("knob", "Saturation | QVNumberTransformer_M880");

} // namespace

// Sliders must follow the panel and set it, whichever way the build and the system have for that.
class SliderNotificationsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void slidersFollowAndSetTheKey();
    void slidersReportWhileHeld();
    void olderPathIsTakenWhereItBelongs();
#if KELMAR_OLDER_HOSTS
    void lastSubviewDecidesTheResult();
#endif
};

void SliderNotificationsTest::slidersFollowAndSetTheKey()
{
    const SampleDialog dialog(ppdBody);
    SliderPanel panel(dialog, layout);
    panel.setValueForKey(QStringLiteral("-3"), saturation);
    QCOMPARE(panel.slider()->value(), -3);
    QTest::keyClick(panel.slider(), Qt::Key_Right);
    QCOMPARE(panel.valueForKey(saturation), QVariant(QStringLiteral("-2")));
    QCOMPARE(panel.slider()->value(), -2);
    QTest::keyClick(panel.slider(), Qt::Key_End);
    QCOMPARE(panel.valueForKey(saturation), QVariant(QStringLiteral("5")));
}

void SliderNotificationsTest::slidersReportWhileHeld()
{
    const SampleDialog dialog(ppdBody);
    SliderPanel panel(dialog, layout);
    QSlider *knob = panel.slider();
    knob->setSliderDown(true);
    knob->setSliderPosition(4);
    QTRY_COMPARE(panel.valueForKey(saturation), QVariant(QStringLiteral("4")));
    knob->setSliderPosition(2);
    knob->setSliderDown(false);
    QCOMPARE(panel.valueForKey(saturation), QVariant(QStringLiteral("2")));
    QCOMPARE(knob->value(), 2);
}

void SliderNotificationsTest::olderPathIsTakenWhereItBelongs()
{
    const auto system = QVPDEManager_M880::darwinVersion();
    const bool older = KELMAR_OLDER_HOSTS && system && system->compare(QVLeopardDarwinVersion) < 0;
    const SampleDialog dialog(ppdBody);
    SliderPanel panel(dialog, layout);
    const bool bound = platform::Binding::infoForBinding(panel.slider(), QStringLiteral("value"));
    QCOMPARE(bound, !older);
    QCOMPARE(panel.slider()->hasTracking(), !older);

    std::unique_ptr<SliderRegistry> registry;
    QVERIFY(!QVDetachSliderBindingsInPDE(&panel, &registry)); // nothing is left to take off
    QCOMPARE(bool(registry), older);
    QVERIFY(!QVDetachSliderBindingsInPDE(&panel, nullptr));
    QVERIFY(!QVAttachNotificationsForSlidersInPDE(&panel, registry.get()));
}

#if KELMAR_OLDER_HOSTS
void SliderNotificationsTest::lastSubviewDecidesTheResult()
{
    const SampleDialog dialog(ppdBody);
    SliderPanel panel(dialog, layout);
    QWidget view;
    QWidget box(&view);
    auto *inBox = new QSlider(&box);
    platform::Binding::bind(inBox, QStringLiteral("value"), &panel, QStringLiteral("SaturationChoice"));
    SliderRegistry registry;
    QVERIFY(QVDetachSliderBindingsInView(&view, &registry));
    QCOMPARE(registry.value(QStringLiteral("SaturationChoice")), inBox);

    platform::Binding::bind(inBox, QStringLiteral("value"), &panel, QStringLiteral("SaturationChoice"));
    QWidget last(&view);
    QVERIFY(!QVDetachSliderBindingsInView(&view, &registry));
    QVERIFY(!platform::Binding::infoForBinding(inBox, QStringLiteral("value")));
}
#endif

QTEST_MAIN(SliderNotificationsTest)
#include "slider_notifications_test.moc"
