// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"
#include "platform/exception.h"
#include "platform/text_field.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QTest>

using namespace Qt::StringLiterals;

using platform::Exception;

namespace {

const QString colorType = u"ColorType"_s;
const QString halftone = u"Halftone"_s;
const QString serial = u"Serial"_s;
const QStringList keys{serial, colorType, halftone};

const QByteArray ppdBody =
    ppdOption("ColorType/Colour Type", {"Auto/Automatic", "Color/Colour", "Mono/Black & White"}) +
    ppdOption("Halftone/Half Tone", {"Fine", "Coarse", "2"}) + ppdOption("Paper", {"Plain", "Bond"});

// A panel with its own layout, an additional property, and a choice of the layout's name.
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
    void answersOptionKeys()
    {
        const SampleDialog dialog(ppdBody);
        SamplePanel panel(dialog, keys);
        const QVariantList choices = panel.valueForKey(u"ColorTypeChoices"_s).toList();
        QCOMPARE(choices.size(), 3);
        QCOMPARE(choices[2].toMap(),
                 (QVariantMap{{QVPPDChoiceKey, u"Mono"_s}, {QVPPDTextKey, u"Black & White"_s}}));
        QCOMPARE(panel.valueForKey(colorType), QVariant(u"Auto"_s)); // the PPD's default
        QCOMPARE(panel.valueForKey(u"ColorTypeChoice"_s), QVariant(0));
        panel.setValueForKey(u"Sepia"_s, colorType);
        QCOMPARE(panel.valueForKey(colorType), QVariant(u"Sepia"_s));
        panel.setValueForKey(2, halftone); // a number is not a keyword, even if there is one of that name
        for (const char *key :
             {"ColorTypeChoice", "Serial", "SerialChoice", "SerialChoices", "HalftoneChoice"})
            QVERIFY2(!panel.valueForKey(QString::fromLatin1(key)).isValid(), key);
        // Options of the PPD that do not belong to the panel, and undefined keys.
        for (const char *undefined : {"Paper", "PaperChoice", "PaperChoices", "Choice"})
            QVERIFY_EXCEPTION_THROWN(panel.valueForKey(QString::fromLatin1(undefined)), Exception);
        QCOMPARE(panel.valueForKey(u"supportedPPDOptionKeys"_s).toStringList(), keys);
    }

    void setsByIndexAndRefusesOthers()
    {
        const SampleDialog dialog(ppdBody);
        SamplePanel panel(dialog, keys);
        QStringList posted;
        dialog.manager->notificationCenter()->addObserver(
            this, colorType, [&](const platform::Notification &change) {
                QCOMPARE(change.object, &panel);
                posted.append(change.userInfo.value(platform::NSKeyValueChangeNewKey).toString());
            });
        const QString index = u"ColorTypeChoice"_s;
        panel.setValueForKey(2, index);
        panel.setValueForKey(u"1st"_s, index);
        QCOMPARE(posted, (QStringList{u"Mono"_s, u"Color"_s}));
        const auto refusal = [&panel](const QVariant &value, const QString &key) {
            try {
                panel.setValueForKey(value, key);
            } catch (const Exception &exception) {
                return exception.name();
            }
            return QString();
        };
        QCOMPARE(refusal(-1, index), Exception::rangeName);
        QCOMPARE(refusal(3, index), Exception::rangeName);
        QCOMPARE(refusal(0, u"SerialChoice"_s), Exception::rangeName);
        QCOMPARE(refusal({}, colorType), Exception::invalidArgumentName);
        QCOMPARE(refusal(u"Bond"_s, u"Paper"_s), Exception::undefinedKeyName);
        QCOMPARE(panel.valueForKey(colorType), QVariant(u"Color"_s));
        dialog.manager->notificationCenter()->removeObserver(this);
    }

    void announcesAChangeInOrder()
    {
        const SampleDialog dialog(ppdBody);
        QObject observer;
        QStringList events;
        auto &center = *dialog.manager->notificationCenter();
        const auto notePost = [&](const platform::Notification &change) {
            events.append(u"post %1 %2"_s.arg(
                change.name, change.userInfo.value(platform::NSKeyValueChangeNewKey).toString()));
        };
        for (const QString &key : {u"ColorTypeChoices"_s, u"SerialChoices"_s, colorType})
            center.addObserver(&observer, key, notePost);
        SamplePanel panel(dialog, keys);
        QCOMPARE(events, QStringList{u"post ColorTypeChoices "_s});
        events.clear();
        const auto note = [&](const char *what, const QString &key) {
            events.append(
                u"%1 %2 %3"_s.arg(QLatin1String(what), key, panel.valueForKey(colorType).toString()));
        };
        using platform::KeyValueObject;
        connect(&panel, &KeyValueObject::valueWillChange, this,
                [&](const QString &key) { note("will", key); });
        connect(&panel, &KeyValueObject::valueDidChange, this, [&](const QString &key) { note("did", key); });
        panel.setValueForKey(u"Mono"_s, colorType);
        QCOMPARE(events.join(u", "),
                 QStringLiteral("will ColorType Auto, will ColorTypeChoice Auto, "
                                "did ColorTypeChoice Mono, did ColorType Mono, post ColorType Mono"));
    }

    void restores()
    {
        SampleDialog dialog(ppdBody);
        dialog.manager->ppd()->markChoiceForOption(u"Mono"_s, colorType);
        SamplePanel panel(dialog, keys);
        panel.setValueForKey(u"Coarse"_s, halftone);
        QVERIFY(panel.restoreValuesAndReturnError(nullptr)); // the option without any value is skipped
        QCOMPARE(panel.valueForKey(colorType), QVariant(u"Mono"_s));
        QCOMPARE(panel.valueForKey(halftone), QVariant(u"Fine"_s));
        dialog.host.settings.setValue(serial, u"007"_s);
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QCOMPARE(panel.valueForKey(serial), QVariant(u"007"_s));

        dialog.manager->setUseConstraintHandling(false); // a host that returns no values
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QCOMPARE(panel.valueForKey(colorType), QVariant(u"Auto"_s));
    }

    void restoreStopsAtAnException()
    {
        const SampleDialog dialog(ppdBody);
        SamplePanel panel(dialog, keys);
        QObject observer;
        int halftoneChanges = 0;
        auto &center = *dialog.manager->notificationCenter();
        center.addObserver(&observer, colorType, [](const auto &) {
            throw Exception(u"Trouble"_s, u"no colour"_s, {{u"tray"_s, 2}});
        });
        center.addObserver(&observer, halftone, [&](const auto &) { ++halftoneChanges; });
        const Exception same(u"Trouble"_s, u"no colour"_s, {{u"tray"_s, 2}});
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

    void saves()
    {
        SampleDialog dialog(ppdBody);
        const auto marked = [&] { return dialog.manager->ppd()->markedChoiceForOption(colorType)->choice; };
        SamplePanel panel(dialog, keys);
        panel.setValueForKey(u"Mono"_s, colorType);
        QCOMPARE(marked(), u"Auto"_s);
        QVERIFY(dialog.host.told.empty());

        dialog.host.settings.setValue(serial, u"007"_s);
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        using Told = std::vector<std::pair<QString, QVariant>>;
        QCOMPARE(dialog.host.told, (Told{{serial, {}}, {colorType, u"Mono"_s}, {halftone, u"Fine"_s}}));
        QCOMPARE(marked(), u"Mono"_s);
        QVERIFY(dialog.host.settings.values().isEmpty()); // the panel has no value for it, so it was removed

        dialog.host.onTold = [](const QString &) { throw Exception(u"Trouble"_s, u"no host"_s); };
        QTest::ignoreMessage(QtWarningMsg, "Trouble: no host");
        QTest::ignoreMessage(QtWarningMsg, "{}");
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
    }

    void saveCommitsTheEditInProgress()
    {
        TestBundle files;
        files.writeLayout(u"Edit"_s, "<widget class=\"platform::TextField\" name=\"field\"><property "
                                     "name=\"bind_stringValue\" stdset=\"0\">"
                                     "<string>Serial</string></property></widget>");
        SampleDialog dialog(ppdBody, files.open());
        LayoutPanel panel(u"Edit"_s);
        panel.setSupportedPPDOptionKeys({serial});
        QVERIFY(panel.initWithManager(dialog.manager));
        QTest::keyClicks(panel.panelView()->findChild<platform::TextField *>(), u"42"_s);
        QVERIFY(!panel.valueForKey(serial).isValid());
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QCOMPARE(dialog.host.settings.value(serial), QVariant(u"42"_s));
    }

    void namesItselfAndItsOptions()
    {
        TestBundle files;
        files.writeStrings(u"en"_s, u"Localizable"_s,
                           {{colorType, u"Colour mode"_s},
                            {u"ColorType:Auto"_s, u"By itself"_s},
                            {u"Toner"_s, u"Ink & Toner"_s}});
        const SampleDialog dialog(ppdBody, files.open());
        SamplePanel panel(dialog, keys);
        panel.setPanelName(u"Toner"_s);
        panel.setPanelIdentifier(u"toner"_s);
        QCOMPARE(panel.panelName(), u"Ink & Toner"_s);
        QCOMPARE(panel.panelKind(), u"com.kelmar.pde.toner"_s);
        QVERIFY(panel.shouldHide());
        // The summary contains the PPD's text of the marked choice, neither the string table's text nor the
        // pending choice.
        panel.setValueForKey(u"Mono"_s, colorType);
        QCOMPARE(panel.summaryInfo(),
                 (QMap<QString, QString>{{u"Colour mode"_s, u"Automatic"_s}, {u"Half Tone"_s, u"Fine"_s}}));
    }

    void loadsItsLayout()
    {
        TestBundle files;
        files.writeLayout(u"Sheet-M880"_s, "<widget class=\"QVPopUpButton_M880\" name=\"popUp\"/>",
                          {u"QVPopUpButton_M880"_s});
        const SampleDialog dialog(ppdBody, files.open());
        dialog.manager->setCurrentModel(u"M880"_s);
        LayoutPanel panel(u"Sheet-%1"_s);
        QVERIFY(panel.initWithManager(dialog.manager));
        QVERIFY(panel.panelView()->findChild<QVPopUpButton_M880 *>());
        panel.setValueForKey(u"hello"_s, u"remark"_s);
        QCOMPARE(panel.remark(), u"hello"_s);

        LayoutPanel missing(u"Nowhere-%1"_s);
        QVERIFY_EXCEPTION_THROWN(missing.initWithManager(dialog.manager), Exception);
        dialog.manager->setBundle(nullptr);
        LayoutPanel bundleless(u"Sheet-%1"_s);
        QVERIFY_EXCEPTION_THROWN(bundleless.initWithManager(dialog.manager), Exception);
        LayoutPanel without(QString{});
        QVERIFY(without.initWithManager(dialog.manager));
        QVERIFY(!without.panelView());
    }

    void livesWithoutManagerOrInterface()
    {
        LayoutPanel orphan(u"Sheet"_s);
        QVERIFY(!orphan.initWithManager(nullptr));
        SampleDialog dialog(ppdBody);
        dialog.manager->setPpd(nullptr);
        SamplePanel panel(dialog, keys);
        QVERIFY(!panel.valueForKey(colorType).isValid());
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QVERIFY(panel.summaryInfo().isEmpty());
    }
};

QTEST_MAIN(PanelBaseTest)
#include "panel_base_test.moc"
