// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "plugin/factory.h"
#include "plugin/manager.h"
#include "plugin/panel_roster.h"
#include "plugin/version_info.h"
#include "ppd/ppd_model.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"
#include "tests/support/test_bundle.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A panel that is nothing but its name and its manager.
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

// A panel class that is on the roster for the length of a scope.
class RosterEntry
{
public:
    explicit RosterEntry(const QString &panelName, Maker maker = nullptr)
        : m_className(PanelRoster::classNameForPanel(panelName))
    {
        if (!maker) {
            maker = [panelName](std::shared_ptr<QVPDEManager_M880> manager) {
                auto panel = std::make_unique<BarePanel>();
                panel->name = panelName;
                panel->manager = std::move(manager);
                return panel;
            };
        }
        PanelRoster::registerClass({m_className, maker});
    }
    ~RosterEntry() { PanelRoster::unregisterClass(m_className); }
    Q_DISABLE_COPY_MOVE(RosterEntry)

private:
    QString m_className;
};

const QString printMode = u"PrintMode"_s;
const QString colorSettings1 = u"ColorSettings1"_s;
const QString colorSettings2 = u"ColorSettings2"_s;

QStringList names(const platform::PrintDialogPanels &panels)
{
    QStringList result;
    for (const auto &panel : panels)
        result.append(panel->panelName());
    return result;
}

const QVPDEManager_M880 &managerOf(const platform::PrintDialogPanels &panels, size_t index)
{
    return *dynamic_cast<BarePanel &>(*panels.at(index)).manager;
}

} // namespace

class FactoryTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void declinesOtherPanelTypes();
    void offersTheClassesOfThisBuildInOrder();
    void configuresOneManagerForADialog();
    void worksForOlderHostsAndWithoutPpd();
    void skipsAPanelThatRaises();
    void passesOtherExceptionsOn();

private:
    std::optional<platform::PrintDialogPanels> panelsFor(platform::PrintDialogHost *host)
    {
        return m_factory.PDEPanelsForTypeWithHostInfo(QVPrintDialogPanelType, host);
    }

    std::shared_ptr<platform::Bundle> m_bundle = TestBundle().open();
    InlinePpd m_ppd{"*ModelName: \"KELMAR OrbM880Series\"\n"};
    QVPDEFactory_M880 m_factory;
};

void FactoryTest::initTestCase()
{
    QVERIFY(m_factory.initWithBundle(m_bundle));
}

void FactoryTest::declinesOtherPanelTypes()
{
    const RosterEntry entry(printMode);
    ResolvingRecordingHost host(m_ppd.get());
    QVERIFY(!m_factory.PDEPanelsForTypeWithHostInfo(QVPrintDialogPanelType.toLower(), &host));
    QCOMPARE(host.ppdRequests, 0);
}

void FactoryTest::offersTheClassesOfThisBuildInOrder()
{
    const RosterEntry last(u"Watermark"_s);
    const RosterEntry second(colorSettings2);
    const RosterEntry unknown(u"Stapler"_s);
    const RosterEntry first(printMode);
    const RosterEntry declining(colorSettings1, [](auto) { return nullptr; });
    ResolvingRecordingHost host(m_ppd.get());
    const auto panels = panelsFor(&host);
    QCOMPARE(names(panels.value()), (QStringList{printMode, colorSettings2, u"Watermark"_s}));
}

void FactoryTest::configuresOneManagerForADialog()
{
    const RosterEntry first(printMode);
    const RosterEntry second(colorSettings1);
    ResolvingRecordingHost host(m_ppd.get());
    const auto panels = panelsFor(&host).value();
    const auto others = panelsFor(&host).value();

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

void FactoryTest::worksForOlderHostsAndWithoutPpd()
{
    const RosterEntry entry(printMode);
    RecordingHost host;
    const auto panels = panelsFor(&host).value();
    QVERIFY(!managerOf(panels, 0).useConstraintHandling());
    QVERIFY(!managerOf(panels, 0).ppd());
    QVERIFY(managerOf(panels, 0).currentModel().isNull());
}

void FactoryTest::skipsAPanelThatRaises()
{
    const RosterEntry failing(printMode, [](auto) -> std::unique_ptr<platform::PrintDialogPanel> {
        throw platform::Exception(platform::Exception::layoutName, u"PrintMode.ui is missing"_s);
    });
    const RosterEntry sound(colorSettings1);
    ResolvingRecordingHost host(m_ppd.get());
    QTest::ignoreMessage(QtWarningMsg,
                         "\"QVPDEPrintMode_M880\" was not loaded because an unexpected error occurred.");
    QTest::ignoreMessage(QtWarningMsg, "LayoutException: PrintMode.ui is missing");
    const auto panels = panelsFor(&host);
    QCOMPARE(names(panels.value()), (QStringList{colorSettings1}));
}

void FactoryTest::passesOtherExceptionsOn()
{
    const RosterEntry failing(printMode, [](auto) -> std::unique_ptr<platform::PrintDialogPanel> {
        throw std::runtime_error("out of luck");
    });
    ResolvingRecordingHost host(m_ppd.get());
    QVERIFY_EXCEPTION_THROWN(panelsFor(&host), std::runtime_error);
}

QTEST_GUILESS_MAIN(FactoryTest)
#include "factory_test.moc"
