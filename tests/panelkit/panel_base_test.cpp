// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"
#include "platform/exception.h"
#include "platform/text_field.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QSignalSpy>
#include <QTest>

using platform::Exception;

namespace {

const QString colorType = QStringLiteral("ColorType");
const QString halftone = QStringLiteral("Halftone");
const QString serial = QStringLiteral("Serial");
const QStringList keys{colorType, halftone, serial};

const QByteArray ppdBody =
    ppdOption("ColorType/Colour Type", {"Auto/Automatic", "Color/Colour", "Mono/Black & White"}) +
    ppdOption("Halftone/Half Tone", {"Fine", "Coarse"}) + ppdOption("Paper", {"Plain", "Bond"});

// A panel with a layout of its own, a property of its own, and a choice of the layout's name.
class LayoutPanel : public QVPDE_M880, public QVPDELoading_M880
{
    Q_OBJECT
    Q_PROPERTY(QString remark READ remark WRITE setRemark)
public:
    explicit LayoutPanel(QString layoutName) : m_layoutName(std::move(layoutName)) {}

    QString nibNameForModel(const QString &model) const override { return m_layoutName.arg(model); }
    QString remark() const { return m_remark; }
    void setRemark(const QString &remark) { m_remark = remark; }

private:
    QString m_layoutName;
    QString m_remark;
};

} // namespace

class PanelBaseTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersOptionKeys();
    void setsByIndex();
    void announcesAChangeInOrder();
    void refusesWhatItCannotHold();
    void restores();
    void restoreStopsAtAnException();
    void saves();
    void saveCommitsTheEditInProgress();
    void summarisesWhatIsMarked();
    void namesItself();
    void loadsItsLayout();
    void livesWithoutManagerOrInterface();
};

void PanelBaseTest::answersOptionKeys()
{
    const SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    const QVariantList choices = panel.valueForKey(QStringLiteral("ColorTypeChoices")).toList();
    QCOMPARE(choices.size(), 3);
    QCOMPARE(choices[2].toMap(), (QVariantMap{{QVPPDChoiceKey, QStringLiteral("Mono")},
                                              {QVPPDTextKey, QStringLiteral("Black & White")}}));
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Auto"))); // the PPD's default
    QCOMPARE(panel.valueForKey(QStringLiteral("ColorTypeChoice")), QVariant(0));
    panel.setValueForKey(QStringLiteral("Sepia"), colorType);
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Sepia")));
    for (const char *nil : {"ColorTypeChoice", "Serial", "SerialChoice", "SerialChoices"})
        QVERIFY2(!panel.valueForKey(QString::fromLatin1(nil)).isValid(), nil);
    // Options of the PPD that are none of the panel's, and keys of nobody.
    for (const char *undefined : {"Paper", "PaperChoice", "PaperChoices", "Choice"})
        QVERIFY_EXCEPTION_THROWN(panel.valueForKey(QString::fromLatin1(undefined)), Exception);
    QCOMPARE(panel.valueForKey(QStringLiteral("supportedPPDOptionKeys")).toStringList(), keys);
}

void PanelBaseTest::setsByIndex()
{
    const SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    QStringList posted;
    dialog.manager->notificationCenter()->addObserver(
        this, colorType, [&](const platform::Notification &change) {
            QCOMPARE(change.object, &panel);
            posted.append(change.userInfo.value(platform::NSKeyValueChangeNewKey).toString());
        });
    const QString index = QStringLiteral("ColorTypeChoice");
    panel.setValueForKey(2, index);
    panel.setValueForKey(QStringLiteral("1st"), index);
    QCOMPARE(posted, (QStringList{QStringLiteral("Mono"), QStringLiteral("Color")}));
    for (const int outside : {-1, 3}) {
        try {
            panel.setValueForKey(outside, index);
            QFAIL("an index outside the list was taken");
        } catch (const Exception &exception) {
            QCOMPARE(exception.name(), Exception::rangeName);
        }
    }
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Color")));
    dialog.manager->notificationCenter()->removeObserver(this);
}

void PanelBaseTest::announcesAChangeInOrder()
{
    const SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    QStringList events;
    const auto note = [&](const char *what, const QString &key) {
        events.append(QStringLiteral("%1 %2 %3")
                          .arg(QString::fromLatin1(what), key, panel.valueForKey(colorType).toString()));
    };
    using platform::KeyValueObject;
    connect(&panel, &KeyValueObject::valueWillChange, this, [&](const QString &key) { note("will", key); });
    connect(&panel, &KeyValueObject::valueDidChange, this, [&](const QString &key) { note("did", key); });
    QObject observer;
    dialog.manager->notificationCenter()->addObserver(
        &observer, colorType, [&](const platform::Notification &change) { note("post", change.name); });
    panel.setValueForKey(QStringLiteral("Mono"), colorType);
    QCOMPARE(events.join(u", "),
             QStringLiteral("will ColorType Auto, will ColorTypeChoice Auto, "
                            "did ColorTypeChoice Mono, did ColorType Mono, post ColorType Mono"));
}

void PanelBaseTest::refusesWhatItCannotHold()
{
    const SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    QVERIFY_EXCEPTION_THROWN(panel.setValueForKey({}, colorType), Exception);
    QVERIFY_EXCEPTION_THROWN(panel.setValueForKey(QStringLiteral("Bond"), QStringLiteral("Paper")),
                             Exception);
    QVERIFY_EXCEPTION_THROWN(panel.setValueForKey(0, QStringLiteral("SerialChoice")), Exception);
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Auto")));
}

void PanelBaseTest::restores()
{
    SampleDialog dialog(ppdBody);
    dialog.manager->ppd()->markChoiceForOption(QStringLiteral("Mono"), colorType);
    dialog.host.settings.setValue(serial, QStringLiteral("007"));
    SamplePanel panel(dialog, keys);
    panel.setValueForKey(QStringLiteral("Coarse"), halftone);
    QVERIFY(panel.restoreValuesAndReturnError(nullptr));
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Mono")));
    QCOMPARE(panel.valueForKey(halftone), QVariant(QStringLiteral("Fine")));
    QCOMPARE(panel.valueForKey(serial), QVariant(QStringLiteral("007")));

    dialog.manager->setUseConstraintHandling(false); // a host that gives no values back
    QVERIFY(panel.restoreValuesAndReturnError(nullptr));
    QCOMPARE(panel.valueForKey(colorType), QVariant(QStringLiteral("Auto")));
}

void PanelBaseTest::restoreStopsAtAnException()
{
    const SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    QObject observer;
    int halftoneChanges = 0;
    auto &center = *dialog.manager->notificationCenter();
    center.addObserver(&observer, colorType, [](const auto &) {
        throw Exception(QStringLiteral("Trouble"), QStringLiteral("no colour"),
                        {{QStringLiteral("tray"), 2}});
    });
    center.addObserver(&observer, halftone, [&](const auto &) { ++halftoneChanges; });
    const Exception same(QStringLiteral("Trouble"), QStringLiteral("no colour"),
                         {{QStringLiteral("tray"), 2}});
    QTest::ignoreMessage(QtWarningMsg, "Trouble: no colour");
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(same.userInfoDescription()));
    QString error;
    QVERIFY(panel.restoreValuesAndReturnError(&error));
    QVERIFY(error.isNull());
    QCOMPARE(halftoneChanges, 0);

    QObject other;
    center.removeObserver(&observer);
    center.addObserver(&other, colorType, [](const auto &) { throw std::runtime_error("else"); });
    QVERIFY_EXCEPTION_THROWN(panel.restoreValuesAndReturnError(nullptr), std::runtime_error);
}

void PanelBaseTest::saves()
{
    SampleDialog dialog(ppdBody);
    SamplePanel panel(dialog, keys);
    panel.setValueForKey(QStringLiteral("Mono"), colorType);
    QCOMPARE(dialog.manager->ppd()->markedChoiceForOption(colorType)->choice, QStringLiteral("Auto"));
    QVERIFY(dialog.host.told.empty());

    dialog.host.settings.setValue(serial, QStringLiteral("007"));
    QVERIFY(panel.saveValuesAndReturnError(nullptr));
    using Told = std::vector<std::pair<QString, QVariant>>;
    QCOMPARE(dialog.host.told,
             (Told{{colorType, QStringLiteral("Mono")}, {halftone, QStringLiteral("Fine")}, {serial, {}}}));
    QCOMPARE(dialog.manager->ppd()->markedChoiceForOption(colorType)->choice, QStringLiteral("Mono"));
    QVERIFY(dialog.host.settings.values().isEmpty()); // the panel has no value for it, so it is gone
}

void PanelBaseTest::saveCommitsTheEditInProgress()
{
    TestBundle files;
    files.writeLayout(QStringLiteral("Edit"),
                      "<widget class=\"platform::TextField\" name=\"field\"><property "
                      "name=\"bind_stringValue\" stdset=\"0\">"
                      "<string>Serial</string></property></widget>");
    SampleDialog dialog(ppdBody, files.open());
    LayoutPanel panel(QStringLiteral("Edit"));
    panel.setSupportedPPDOptionKeys({serial});
    QVERIFY(panel.initWithManager(dialog.manager));
    QTest::keyClicks(panel.panelView()->findChild<platform::TextField *>(), QStringLiteral("42"));
    QVERIFY(!panel.valueForKey(serial).isValid());
    QVERIFY(panel.saveValuesAndReturnError(nullptr));
    QCOMPARE(dialog.host.settings.value(serial), QVariant(QStringLiteral("42")));
}

void PanelBaseTest::summarisesWhatIsMarked()
{
    TestBundle files;
    files.writeStrings(QStringLiteral("en"), QStringLiteral("Localizable"),
                       {{colorType, QStringLiteral("Colour mode")}});
    const SampleDialog dialog(ppdBody, files.open());
    SamplePanel panel(dialog, keys);
    panel.setValueForKey(QStringLiteral("Mono"), colorType); // pending, so not in the summary
    QCOMPARE(panel.summaryInfo(),
             (QMap<QString, QString>{{QStringLiteral("Colour mode"), QStringLiteral("Automatic")},
                                     {QStringLiteral("Half Tone"), QStringLiteral("Fine")}}));
}

void PanelBaseTest::namesItself()
{
    TestBundle files;
    files.writeStrings(QStringLiteral("en"), QStringLiteral("Localizable"),
                       {{QStringLiteral("Toner"), QStringLiteral("Ink & Toner")}});
    const SampleDialog dialog(ppdBody, files.open());
    SamplePanel panel(dialog, {});
    panel.setPanelName(QStringLiteral("Toner"));
    panel.setPanelIdentifier(QStringLiteral("toner"));
    QCOMPARE(panel.panelName(), QStringLiteral("Ink & Toner"));
    QCOMPARE(panel.panelKind(), QStringLiteral("com.kelmar.pde.toner"));
    QVERIFY(panel.shouldHide());
}

void PanelBaseTest::loadsItsLayout()
{
    TestBundle files;
    files.writeLayout(QStringLiteral("Sheet-M880"), "<widget class=\"QVPopUpButton_M880\" name=\"popUp\"/>",
                      {QStringLiteral("QVPopUpButton_M880")});
    const SampleDialog dialog(ppdBody, files.open());
    dialog.manager->setCurrentModel(QStringLiteral("M880"));
    LayoutPanel panel(QStringLiteral("Sheet-%1"));
    QVERIFY(panel.initWithManager(dialog.manager));
    QVERIFY(panel.panelView()->findChild<QVPopUpButton_M880 *>());
    panel.setValueForKey(QStringLiteral("hello"), QStringLiteral("remark"));
    QCOMPARE(panel.remark(), QStringLiteral("hello"));

    LayoutPanel missing(QStringLiteral("Nowhere-%1"));
    QVERIFY_EXCEPTION_THROWN(missing.initWithManager(dialog.manager), Exception);
    LayoutPanel without(QString{});
    QVERIFY(without.initWithManager(dialog.manager));
    QVERIFY(!without.panelView());
}

void PanelBaseTest::livesWithoutManagerOrInterface()
{
    LayoutPanel orphan(QStringLiteral("Sheet"));
    QVERIFY(!orphan.initWithManager(nullptr));
    SampleDialog dialog(ppdBody);
    dialog.manager->setPpd(nullptr);
    SamplePanel panel(dialog, keys);
    QVERIFY(!panel.valueForKey(colorType).isValid());
    QVERIFY(panel.restoreValuesAndReturnError(nullptr));
    QVERIFY(panel.saveValuesAndReturnError(nullptr));
    QVERIFY(panel.summaryInfo().isEmpty());
}

QTEST_MAIN(PanelBaseTest)
#include "panel_base_test.moc"
