// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/bundle.h"
#include "plugin/manager.h"
#include "plugin/version_info.h"
#include "ppd/ppd_model.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"

#include <QTest>

using namespace Qt::StringLiterals;

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

const QString colorType = u"ColorType"_s;
const QString halftone = u"Halftone"_s;
const QString stamp = u"Stamp"_s;
const QString foreign = u"com.kelmar.foreign"_s;

} // namespace

class ManagerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsVersions();
    void readsMarkedThenDefaultThenSetting();
    void readsEveryOptionWhenNoneIsNamed();
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
    QCOMPARE(QVPDEManager_M880::managerVersion()->stringValue(), u"1.01.0"_s);
    const QString release = QSysInfo::kernelVersion();
    const auto system = QVPDEManager_M880::darwinVersion();
    QCOMPARE(bool(system), release.count(u'.') <= 2);
    if (system)
        QCOMPARE(system->compare(release), 0);
}

void ManagerTest::readsMarkedThenDefaultThenSetting()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.ppd.unmarkAll();
    dialog.manager.ppd()->markChoiceForOption(u"Mono"_s, colorType);
    for (const QString &key : {colorType, halftone, stamp, foreign})
        dialog.host.settings.setValue(key, u"from settings"_s);
    const auto choices =
        dialog.manager.ppdDictionaryForOptions({colorType, halftone, stamp, foreign, u"Nowhere"_s});
    QCOMPARE(choices.value(), (QVariantMap{{colorType, u"Mono"_s},
                                           {halftone, u"Fine"_s},
                                           {stamp, u"from settings"_s},
                                           {foreign, u"from settings"_s}}));
}

void ManagerTest::readsEveryOptionWhenNoneIsNamed()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.host.settings.setValue(foreign, 1);
    QCOMPARE(dialog.manager.ppdDictionaryForOptions({}).value(),
             (QVariantMap{{colorType, u"Auto"_s}, {halftone, u"Fine"_s}}));
}

void ManagerTest::tellsTheHostBeforeItWrites()
{
    Dialog<ResolvingRecordingHost> dialog;
    QStringList before;
    dialog.host.onTold = [&](const QString &keyword) {
        before.append(keyword == colorType ? dialog.marked(colorType)
                                           : dialog.host.settings.value(keyword).toString());
    };
    dialog.manager.setPpdDictionaryForOptions({{colorType, u"Mono"_s}, {foreign, u"new"_s}},
                                              {foreign, colorType, stamp});
    QCOMPARE(before, (QStringList{QString(), u"Auto"_s, QString()}));
    using Told = std::vector<std::pair<QString, QVariant>>;
    QCOMPARE(dialog.host.told, (Told{{foreign, u"new"_s}, {colorType, u"Mono"_s}, {stamp, {}}}));
    QCOMPARE(dialog.marked(colorType), u"Mono"_s);
    QCOMPARE(dialog.host.settings.values(), (QVariantMap{{foreign, u"new"_s}}));
}

void ManagerTest::writesWhatIsNoChoiceIntoTheSettings()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.host.settings.setValue(halftone, u"old"_s);
    dialog.manager.setPpdDictionaryForOptions({{colorType, 2}}, {colorType, halftone});
    QCOMPARE(dialog.marked(colorType), u"Auto"_s);
    QCOMPARE(dialog.host.settings.values(), (QVariantMap{{colorType, 2}})); // nil took the other away
}

void ManagerTest::writesEveryEntryWhenNoKeyIsNamed()
{
    Dialog<ResolvingRecordingHost> dialog;
    dialog.manager.setPpdDictionaryForOptions({{colorType, u"Color"_s}, {halftone, u"Coarse"_s}}, {});
    QCOMPARE(dialog.marked(colorType), u"Color"_s);
    QCOMPARE(dialog.marked(halftone), u"Coarse"_s);
}

void ManagerTest::survivesWithoutHostAndPpd()
{
    QVPDEManager_M880 manager;
    manager.setUseConstraintHandling(true);
    manager.setBundle(nullptr);
    manager.setPpdDictionaryForOptions({{colorType, u"Mono"_s}}, {});
    QCOMPARE(manager.ppdDictionaryForOptions({colorType}).value(), QVariantMap());
    QCOMPARE(manager.localizedStringForKey(colorType), colorType);
    QVERIFY(!manager.bundleVersion());
}

#if KELMAR_OLDER_HOSTS
const QString ticketName = u"PMPrintSettingsTicket"_s;

void ManagerTest::readsTheTicket()
{
    Dialog<RecordingHost> dialog;
    dialog.host.session.tickets[ticketName].ppdDictionary =
        QVariantMap{{colorType, u"Color"_s}, {halftone, u"Fine"_s}, {stamp, QVariant()}};
    QCOMPARE(dialog.manager.ppdDictionaryForOptions({colorType, stamp, foreign}).value(),
             (QVariantMap{{colorType, u"Color"_s}}));
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({}));
}

void ManagerTest::writesTheTicketAndMarks()
{
    Dialog<RecordingHost> dialog;
    auto &inTicket = dialog.host.session.tickets[ticketName].ppdDictionary;
    inTicket = QVariantMap{{colorType, u"Color"_s}, {stamp, u"On"_s}};
    dialog.manager.setPpdDictionaryForOptions(
        {{colorType, u"Mono"_s}, {halftone, u"Coarse"_s}, {foreign, u"x"_s}, {stamp, QVariant()}},
        {colorType, foreign, stamp});
    QCOMPARE(inTicket.value(), (QVariantMap{{colorType, u"Mono"_s}, {foreign, u"x"_s}, {stamp, u"On"_s}}));
    QCOMPARE(dialog.marked(colorType), u"Mono"_s);
    QCOMPARE(dialog.marked(halftone), u"Fine"_s);

    dialog.manager.setPpdDictionaryForOptions({{halftone, u"Coarse"_s}}, {});
    QCOMPARE(dialog.marked(halftone), u"Coarse"_s);
    QVERIFY(dialog.host.settings.values().isEmpty());
}

void ManagerTest::survivesAMissingTicket()
{
    Dialog<RecordingHost> dialog;
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({colorType}));
    dialog.manager.setPpdDictionaryForOptions({{colorType, u"Mono"_s}}, {colorType});
    QCOMPARE(dialog.marked(colorType), u"Mono"_s);
}
#else
void ManagerTest::takesNoPartWithoutConstraintHandling()
{
    Dialog<RecordingHost> dialog;
    QVERIFY(!dialog.manager.ppdDictionaryForOptions({colorType}));
    dialog.manager.setPpdDictionaryForOptions({{colorType, u"Mono"_s}}, {colorType});
    QCOMPARE(dialog.marked(colorType), u"Auto"_s);
    QVERIFY(dialog.host.settings.values().isEmpty());
}
#endif

QTEST_GUILESS_MAIN(ManagerTest)
#include "manager_test.moc"
