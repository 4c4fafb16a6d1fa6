// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/bundle.h"
#include "plugin/manager.h"
#include "plugin/model_names.h"
#include "ppd/ppd_model.h"
#include "ppd/version_info.h"
#include "tests/ppds/family.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QByteArray ppdBody =
    ppdOption("ColorType", {"Auto", "Color", "Mono"}) +
    // marked and default choice are both missing
    "*OpenUI *Stamp: PickOne\n*DefaultStamp: Gone\n*Stamp On: \"\"\n*CloseUI: *Stamp\n" +
    ppdOption("Halftone", {"Fine", "Coarse"});

// The objects that a manager needs, as in one dialog.
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

// Newer hosts are accessed through the PPD's marks and the job's settings, older ones through the ticket of
// their session.
class ManagerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsVersions()
    {
        QCOMPARE(QVPDEManager_M880::managerVersion()->stringValue(), u"1.01.0"_s);
        const QString release = QSysInfo::kernelVersion();
        const auto system = QVPDEManager_M880::darwinVersion();
        QCOMPARE(bool(system), release.count(u'.') <= 2);
        if (system)
            QCOMPARE(system->compare(release), 0);
    }

    void namesTheModelsAsTheirPpdsDo()
    {
        const std::array names{QVAlder, QVBirch,  QVCedar, QVDogwood, QVElm,
                               QVFir,   QVGinkgo, QVHazel, QVIvy,     QVJuniper};
        for (const QString &name : names)
            QVERIFY2(
                std::ranges::any_of(
                    family, [&](const FamilyModel &model) { return name == QLatin1String(model.modelName); }),
                qPrintable(name));
    }

    void readsMarkedThenDefaultThenSetting()
    {
        Dialog<ResolvingRecordingHost> dialog;
        for (const QString &key : {colorType, halftone, stamp, foreign})
            dialog.host.settings.setValue(key, u"from settings"_s);
        dialog.ppd.unmarkAll();
        dialog.manager.ppd()->markChoiceForOption(u"Mono"_s, colorType);
        QVariantMap expected{{colorType, u"Mono"_s}, {halftone, u"Fine"_s}, {stamp, u"from settings"_s}};
        QCOMPARE(dialog.manager.ppdDictionaryForOptions({}).value(), expected);
        expected.insert(foreign, u"from settings"_s);
        QCOMPARE(dialog.manager.ppdDictionaryForOptions({colorType, halftone, stamp, foreign, u"Nowhere"_s})
                     .value(),
                 expected);
    }

    void tellsTheHostBeforeItWrites()
    {
        Dialog<ResolvingRecordingHost> dialog;
        dialog.host.settings.setValue(stamp, u"old"_s);
        QStringList before;
        dialog.host.onTold = [&](const QString &keyword) {
            before.append(dialog.marked(colorType) + dialog.host.settings.value(keyword).toString());
        };
        // A number is not a choice, so it becomes a setting; null removes a setting.
        dialog.manager.setPpdDictionaryForOptions(
            {{colorType, u"Mono"_s}, {foreign, u"new"_s}, {halftone, 2}},
            {foreign, colorType, stamp, halftone});
        QCOMPARE(before, (QStringList{u"Auto"_s, u"Auto"_s, u"Monoold"_s, u"Mono"_s}));
        using Told = std::vector<std::pair<QString, QVariant>>;
        QCOMPARE(dialog.host.told,
                 (Told{{foreign, u"new"_s}, {colorType, u"Mono"_s}, {stamp, {}}, {halftone, 2}}));
        QCOMPARE(dialog.marked(colorType), u"Mono"_s);
        QCOMPARE(dialog.marked(halftone), u"Fine"_s);
        QCOMPARE(dialog.host.settings.values(), (QVariantMap{{foreign, u"new"_s}, {halftone, 2}}));
        dialog.host.onTold = nullptr;
        dialog.manager.setPpdDictionaryForOptions({{halftone, u"Coarse"_s}}, {}); // no keys: all entries
        QCOMPARE(dialog.marked(halftone), u"Coarse"_s);
    }

    void survivesWithoutHostAndPpd()
    {
        QVPDEManager_M880 manager;
        manager.setUseConstraintHandling(true);
        manager.setBundle(nullptr);
        manager.setPpdDictionaryForOptions({{colorType, u"Mono"_s}}, {});
        QCOMPARE(manager.ppdDictionaryForOptions({colorType}).value(), QVariantMap());
        QCOMPARE(manager.localizedStringForKey(colorType), colorType);
        QVERIFY(!manager.bundleVersion());
    }

    void servesOlderHostsWhereTheBuildHasThem()
    {
        Dialog<RecordingHost> dialog;
        const QVariantMap choices{
            {colorType, u"Mono"_s}, {halftone, u"Coarse"_s}, {foreign, u"x"_s}, {stamp, QVariant()}};
        // Without a ticket nothing is read, and only marks are written.
        QVERIFY(!dialog.manager.ppdDictionaryForOptions({colorType}));
        dialog.manager.setPpdDictionaryForOptions(choices, {colorType});
        QCOMPARE(dialog.marked(colorType), KELMAR_OLDER_HOSTS ? u"Mono"_s : u"Auto"_s);
#if KELMAR_OLDER_HOSTS
        auto &inTicket = dialog.host.session.tickets[u"PMPrintSettingsTicket"_s].ppdDictionary;
        inTicket = QVariantMap{{colorType, u"Color"_s}, {halftone, u"Fine"_s}, {stamp, QVariant()}};
        QCOMPARE(dialog.manager.ppdDictionaryForOptions({colorType, stamp, foreign}).value(),
                 (QVariantMap{{colorType, u"Color"_s}}));
        QVERIFY(!dialog.manager.ppdDictionaryForOptions({}));

        inTicket->insert(stamp, u"On"_s);
        dialog.manager.setPpdDictionaryForOptions(choices, {colorType, foreign, stamp});
        QCOMPARE(inTicket.value(),
                 (QVariantMap{
                     {colorType, u"Mono"_s}, {halftone, u"Fine"_s}, {foreign, u"x"_s}, {stamp, u"On"_s}}));
        QCOMPARE(dialog.marked(halftone), u"Fine"_s);
        dialog.manager.setPpdDictionaryForOptions({{halftone, u"Coarse"_s}}, {});
        QCOMPARE(dialog.marked(halftone), u"Coarse"_s);
#endif
        QVERIFY(dialog.host.settings.values().isEmpty());
    }
};

QTEST_GUILESS_MAIN(ManagerTest)
#include "manager_test.moc"
