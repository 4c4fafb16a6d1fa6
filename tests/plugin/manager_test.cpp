// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/bundle.h"
#include "plugin/manager.h"
#include "plugin/version_info.h"
#include "ppd/ppd_model.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"

#include <QTest>

namespace {

const QByteArray ppdBody =
    ppdOption("ColorType", {"Auto", "Color", "Mono"}) +
    // marked and default choice are both missing
    "*OpenUI *Stamp: PickOne\n*DefaultStamp: Gone\n*Stamp On: \"\"\n*CloseUI: *Stamp\n" +
    ppdOption("Halftone", {"Fine", "Coarse"});

// What a manager needs, put together as for one dialog.
template <typename Host>
struct Dialog
{
    Dialog()
    {
        manager.setHost(&host);
        manager.setPpd(QVPPD_M880::ppdWithHost(&host));
        manager.setUseConstraintHandling(std::is_base_of_v<platform::ConstraintResolvingHost, Host>);
    }
    QString marked(const QString &option) const
    {
        return manager.ppd()->markedChoiceForOption(option)->choice;
    }

    InlinePpd ppd{ppdBody};
    Host host{ppd.get()};
    QVPDEManager_M880 manager;
};

const QString colorType = QStringLiteral("ColorType");
const QString halftone = QStringLiteral("Halftone");
const QString stamp = QStringLiteral("Stamp");
const QString foreign = QStringLiteral("com.kelmar.foreign");

} // namespace

class ManagerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsVersions();
    void readsMarkedThenDefaultThenSetting();
    void readsEveryOptionWhenNoneIsNamed();
    void readsDefaultWhereNothingIsMarked();
    void tellsTheHostBeforeItWrites();
    void writesWhatIsNoChoiceIntoTheSettings();
    void writesEveryEntryWhenNoKeyIsNamed();
    void survivesWithoutHostAndPpd();
#if KELMAR_OLDER_HOSTS
    void readsTheTicket();
    void writesTheTicketAndMarks();
    void survivesAMissingTicket();
#else
    void takesNoPartWithoutConstraintHandling();
#endif
};

void ManagerTest::tellsVersions()
{
    QCOMPARE(QVPDEManager_M880::managerVersion()->stringValue(), QStringLiteral("1.01.0"));
    const QString release = QSysInfo::kernelVersion();
    const auto system = QVPDEManager_M880::darwinVersion();
    QCOMPARE(bool(system), release.count(u'.') <= 2);
    if (system)
        QCOMPARE(system->compare(release), 0);
}

void ManagerTest::readsMarkedThenDefaultThenSetting()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.manager.ppd()->markChoiceForOption(QStringLiteral("Mono"), colorType);
    for (const QString &key : {colorType, stamp, foreign})
        dialog.host.settings.setValue(key, QStringLiteral("from settings"));
    const auto choices =
        dialog.manager.ppdDictionaryForOptions({colorType, stamp, foreign, QStringLiteral("Nowhere")});
    QCOMPARE(choices.value(), (QVariantMap{{colorType, QStringLiteral("Mono")},
                                           {stamp, QStringLiteral("from settings")},
                                           {foreign, QStringLiteral("from settings")}}));
}

void ManagerTest::readsEveryOptionWhenNoneIsNamed()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.host.settings.setValue(foreign, 1);
    QCOMPARE(dialog.manager.ppdDictionaryForOptions({}).value(),
             (QVariantMap{{colorType, QStringLiteral("Auto")}, {halftone, QStringLiteral("Fine")}}));
}

void ManagerTest::readsDefaultWhereNothingIsMarked()
{
    InlinePpd ppd(ppdOption("ColorType", {"Auto", "Color"}));
    ppd.unmarkAll();
    ResolvingRecordingHost host(ppd.get());
    host.settings.setValue(colorType, QStringLiteral("from settings"));
    QVPDEManager_M880 manager;
    manager.setHost(&host);
    manager.setPpd(QVPPD_M880::ppdWithHost(&host));
    manager.setUseConstraintHandling(true);
    QVERIFY(!manager.ppd()->markedChoiceForOption(colorType));
    QCOMPARE(manager.ppdDictionaryForOptions({colorType}).value().value(colorType), QStringLiteral("Auto"));
}

void ManagerTest::tellsTheHostBeforeItWrites()
{
    Dialog<ResolvingRecordingHost> dialog;
    QStringList before;
    dialog.host.onTold = [&](const QString &keyword) {
        before.append(keyword == colorType ? dialog.marked(colorType)
                                           : dialog.host.settings.value(keyword).toString());
    };
    dialog.manager.setPpdDictionaryForOptions(
        {{colorType, QStringLiteral("Mono")}, {foreign, QStringLiteral("new")}}, {foreign, colorType, stamp});
    QCOMPARE(before, (QStringList{QString(), QStringLiteral("Auto"), QString()}));
    using Told = std::vector<std::pair<QString, QVariant>>;
    QCOMPARE(dialog.host.told,
             (Told{{foreign, QStringLiteral("new")}, {colorType, QStringLiteral("Mono")}, {stamp, {}}}));
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Mono"));
    QCOMPARE(dialog.host.settings.values(), (QVariantMap{{foreign, QStringLiteral("new")}}));
}

void ManagerTest::writesWhatIsNoChoiceIntoTheSettings()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.host.settings.setValue(halftone, QStringLiteral("old"));
    dialog.manager.setPpdDictionaryForOptions({{colorType, 2}}, {colorType, halftone});
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Auto"));
    QCOMPARE(dialog.host.settings.values(), (QVariantMap{{colorType, 2}})); // nil took the other away
}

void ManagerTest::writesEveryEntryWhenNoKeyIsNamed()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.manager.setPpdDictionaryForOptions(
        {{colorType, QStringLiteral("Color")}, {halftone, QStringLiteral("Coarse")}}, {});
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Color"));
    QCOMPARE(dialog.marked(halftone), QStringLiteral("Coarse"));
}

void ManagerTest::survivesWithoutHostAndPpd()
{
    QVPDEManager_M880 manager;
    manager.setUseConstraintHandling(true);
    manager.setBundle(nullptr);
    manager.setPpdDictionaryForOptions({{colorType, QStringLiteral("Mono")}}, {});
    QCOMPARE(manager.ppdDictionaryForOptions({colorType}).value(), QVariantMap());
    QCOMPARE(manager.localizedStringForKey(colorType), colorType);
    QVERIFY(!manager.bundleVersion());
}

#if KELMAR_OLDER_HOSTS
const QString ticketName = QStringLiteral("PMPrintSettingsTicket");

void ManagerTest::readsTheTicket()
{
    Dialog<RecordingHost> dialog;
    dialog.host.session.tickets[ticketName].ppdDictionary = QVariantMap{
        {colorType, QStringLiteral("Color")}, {halftone, QStringLiteral("Fine")}, {stamp, QVariant()}};
    QCOMPARE(dialog.manager.ppdDictionaryForOptions({colorType, stamp, foreign}).value(),
             (QVariantMap{{colorType, QStringLiteral("Color")}}));
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({}));
}

void ManagerTest::writesTheTicketAndMarks()
{
    Dialog<RecordingHost> dialog;
    auto &inTicket = dialog.host.session.tickets[ticketName].ppdDictionary;
    inTicket = QVariantMap{{colorType, QStringLiteral("Color")}, {stamp, QStringLiteral("On")}};
    dialog.manager.setPpdDictionaryForOptions({{colorType, QStringLiteral("Mono")},
                                               {halftone, QStringLiteral("Coarse")},
                                               {foreign, QStringLiteral("x")},
                                               {stamp, QVariant()}},
                                              {colorType, foreign, stamp});
    QCOMPARE(inTicket.value(), (QVariantMap{{colorType, QStringLiteral("Mono")},
                                            {foreign, QStringLiteral("x")},
                                            {stamp, QStringLiteral("On")}}));
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Mono"));
    QCOMPARE(dialog.marked(halftone), QStringLiteral("Fine"));

    dialog.manager.setPpdDictionaryForOptions({{halftone, QStringLiteral("Coarse")}}, {});
    QCOMPARE(dialog.marked(halftone), QStringLiteral("Coarse"));
    QVERIFY(dialog.host.settings.values().isEmpty());
}

void ManagerTest::survivesAMissingTicket()
{
    Dialog<RecordingHost> dialog;
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({colorType}));
    dialog.manager.setPpdDictionaryForOptions({{colorType, QStringLiteral("Mono")}}, {colorType});
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Mono"));
}
#else
void ManagerTest::takesNoPartWithoutConstraintHandling()
{
    Dialog<RecordingHost> dialog;
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({colorType}));
    dialog.manager.setPpdDictionaryForOptions({{colorType, QStringLiteral("Mono")}}, {colorType});
    QCOMPARE(dialog.marked(colorType), QStringLiteral("Auto"));
    QVERIFY(dialog.host.settings.values().isEmpty());
}
#endif

QTEST_GUILESS_MAIN(ManagerTest)
#include "manager_test.moc"
