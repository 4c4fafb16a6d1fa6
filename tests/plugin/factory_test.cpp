// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "plugin/factory.h"
#include "plugin/manager.h"
#include "plugin/panel_roster.h"
#include "ppd/ppd_model.h"
#include "ppd/version_info.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"
#include "tests/support/test_bundle.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A panel with only a name and a manager.
struct BarePanel : platform::PrintDialogPanel
{
    QString panelName() override { return name; }
    QString panelKind() override { return name; }
    QWidget *panelView() override { return nullptr; }
    QMap<QString, QString> summaryInfo() override { return {}; }
    bool shouldHide() override { return true; }
    void willShow() override {}
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    platform::KeyValueObject *keyValueObject() override { return &keys; }

    QString name;
    std::shared_ptr<QVPDEManager_M880> manager;
    platform::KeyValueObject keys;
};

using Maker = std::function<std::unique_ptr<platform::PrintDialogPanel>(std::shared_ptr<QVPDEManager_M880>)>;

// Registers a panel class for the duration of a scope.
class RosterEntry
{
public:
    RosterEntry(const QString &panelName, Maker maker)
        : m_className(PanelRoster::classNameForPanel(panelName))
    {
        PanelRoster::registerClass({m_className, std::move(maker)});
    }
    explicit RosterEntry(const QString &panelName)
        : RosterEntry(panelName, [panelName](std::shared_ptr<QVPDEManager_M880> manager) {
              auto panel = std::make_unique<BarePanel>();
              panel->name = panelName;
              panel->manager = std::move(manager);
              return panel;
          })
    {
    }
    ~RosterEntry() { PanelRoster::unregisterClass(m_className); }
    Q_DISABLE_COPY_MOVE(RosterEntry)

private:
    QString m_className;
};

const QString panelType = u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s;
const QString printMode = u"PrintMode"_s;
const QString colorSettings1 = u"ColorSettings1"_s;
const QString colorSettings2 = u"ColorSettings2"_s;

const QVPDEManager_M880 &managerOf(const platform::PrintDialogPanels &panels, size_t index)
{
    return *dynamic_cast<BarePanel &>(*panels.at(index)).manager;
}

} // namespace

class FactoryTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(m_factory.initWithBundle(m_bundle)); }

    void declinesOtherPanelTypes()
    {
        const RosterEntry entry(printMode);
        ResolvingRecordingHost host(m_ppd.get());
        QVERIFY(!m_factory.PDEPanelsForTypeWithHostInfo(panelType.toLower(), &host));
        QCOMPARE(host.ppdRequests, 0);
    }

    void makesThePanelsOfThisBuildInOrder()
    {
        const RosterEntry last(u"Watermark"_s);
        const RosterEntry second(colorSettings2);
        const RosterEntry unknown(u"Stapler"_s);
        const RosterEntry first(printMode);
        const RosterEntry declining(colorSettings1, [](auto) { return nullptr; });
        const RosterEntry failing(u"Fax"_s, [](auto) -> std::unique_ptr<platform::PrintDialogPanel> {
            throw platform::Exception(platform::Exception::layoutName, u"Fax.ui is missing"_s);
        });
        ResolvingRecordingHost host(m_ppd.get());
        QTest::ignoreMessage(QtWarningMsg,
                             "\"QVPDEFax_M880\" was not loaded because an unexpected error occurred.");
        QTest::ignoreMessage(QtWarningMsg, "LayoutException: Fax.ui is missing");
        QStringList names;
        for (const auto &panel : panelsFor(&host))
            names.append(panel->panelName());
        QCOMPARE(names, (QStringList{printMode, colorSettings2, u"Watermark"_s}));
        QCOMPARE(host.failedPanels, QStringList(u"QVPDEFax_M880: Fax.ui is missing"_s));
    }

    void configuresOneManagerForADialog()
    {
        const RosterEntry first(printMode);
        const RosterEntry second(colorSettings1);
        ResolvingRecordingHost host(m_ppd.get());
        const auto panels = panelsFor(&host);
        const auto others = panelsFor(&host);
        const QVPDEManager_M880 &manager = managerOf(panels, 0);
        QCOMPARE(&managerOf(panels, 1), &manager);
        QVERIFY(&managerOf(others, 0) != &manager);
        QCOMPARE(manager.bundle(), m_bundle);
        QCOMPARE(manager.bundleVersion()->stringValue(), u"1.0.0"_s);
        QCOMPARE(manager.host(), static_cast<platform::PrintDialogHost *>(&host));
        QCOMPARE(manager.ppd()->cupsPPD(), m_ppd.get());
        QCOMPARE(manager.currentModel(), u"KELMAR OrbM880Series"_s);
        QVERIFY(manager.useConstraintHandling());
    }

    void worksForOlderHostsAndWithoutHostOrPpd()
    {
        const RosterEntry entry(printMode);
        RecordingHost older;
        for (platform::PrintDialogHost *host : {static_cast<platform::PrintDialogHost *>(&older), {}}) {
            const auto panels = panelsFor(host);
            QVERIFY(!managerOf(panels, 0).useConstraintHandling());
            QVERIFY(!managerOf(panels, 0).ppd());
            QVERIFY(managerOf(panels, 0).currentModel().isNull());
        }
    }

    void passesOtherExceptionsOn()
    {
        const RosterEntry failing(printMode, [](auto) -> std::unique_ptr<platform::PrintDialogPanel> {
            throw std::runtime_error("out of luck");
        });
        ResolvingRecordingHost host(m_ppd.get());
        QVERIFY_EXCEPTION_THROWN(panelsFor(&host), std::runtime_error);
    }

private:
    platform::PrintDialogPanels panelsFor(platform::PrintDialogHost *host)
    {
        return std::move(m_factory.PDEPanelsForTypeWithHostInfo(panelType, host).value());
    }

    std::shared_ptr<platform::Bundle> m_bundle = TestBundle().open();
    InlinePpd m_ppd{"*ModelName: \"KELMAR OrbM880Series\"\n"};
    QVPDEFactory_M880 m_factory;
};

QTEST_GUILESS_MAIN(FactoryTest)
#include "factory_test.moc"
