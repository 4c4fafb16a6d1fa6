// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/ppd_model.h"
#include "ppd/version_info.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"
#include "tests/support/test_bundle.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A model of a PPD defined in the test.
struct Model
{
    explicit Model(const QByteArray &body) : ppd(body), host(ppd.get()), model(QVPPD_M880::ppdWithHost(&host))
    {
        if (!model)
            qFatal("libcups refuses the PPD");
    }
    QVPPD_M880 *operator->() const { return model.get(); }

    InlinePpd ppd;
    RecordingHost host;
    std::shared_ptr<QVPPD_M880> model;
};

const QString colorType = u"ColorType"_s;
const QString mono = u"Mono"_s;
const QByteArray colorTypeOption =
    ppdOption("ColorType/Colour Type", {"Auto/Automatic", "Color/Colour", "Mono/Black & White"});
const QString longName = u"An40CharacterKeywordThatLibcupsCanStillHo"_s;

} // namespace

class PpdModelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsThePpd()
    {
        QVERIFY(!QVPPD_M880::ppdWithHost(nullptr));
        RecordingHost host;
        QVERIFY(!QVPPD_M880::ppdWithHost(&host));
        const InlinePpd ofSession("");
        host.session.ppd = ofSession.get();
        QCOMPARE(QVPPD_M880::ppdWithHost(&host)->cupsPPD(), ofSession.get());
        const InlinePpd ofHost("");
        host.ppd = ofHost.get();
        QCOMPARE(QVPPD_M880::ppdWithHost(&host)->cupsPPD(), ofHost.get());
    }

    void readsTheHead()
    {
        const Model model(
            "*FileVersion: \"1.02\"\n*ModelName: \"KELMAR Orb \xc3\x9c\"\n*PCFileName: \"KELM880.PPD\"\n");
        QCOMPARE(model->version()->stringValue(), u"1.02.0"_s);
        QCOMPARE(model->modelname(), u"KELMAR Orb Ü"_s);
        QCOMPARE(model->ppdFilename(), u"KELM880.PPD"_s);
        const Model bare("");
        QVERIFY(!bare->version());
        QVERIFY(bare->modelname().isNull());
        QVERIFY(bare->ppdFilename().isNull());
    }

    void listsOptionsOnceInPpdOrder()
    {
        const Model model(ppdGroup("Second", ppdOption("Zeta", {"a"}) + ppdOption("Mu", {"a"})) +
                          ppdGroup("First", ppdOption("Alpha", {"a"})));
        const QStringList *options = &model->allOptions();
        QCOMPARE(*options, (QStringList{u"Zeta"_s, u"Mu"_s, u"Alpha"_s}));
        model->setCupsPPD(nullptr);
        QCOMPARE(&model->allOptions(), options);
        QCOMPARE(options->size(), 3);
        QVERIFY(!model->hasOption(u"Mu"_s));
    }

    void findsOptions()
    {
        // libcups reads such a long keyword only without an asterisk and without a default.
        const QByteArray keyword = longName.left(40).toLatin1();
        const QByteArray longest =
            "*OpenUI " + keyword + ": PickOne\n*" + keyword + " 0: \"\"\n*CloseUI: " + keyword + "\n";
        const Model model(ppdOption("DINDigit1", {"0"}) + longest);
        for (const QString &there : {u"DINDigit1"_s, u"DINDigit"_s, longName.left(40)})
            QVERIFY2(model->hasOption(there), qUtf8Printable(there));
        for (const QString &missing : {u"DINDigit2"_s, longName, u"DINDigit1"_s + QChar(u'\0'), QString()})
            QVERIFY2(!model->hasOption(missing), qUtf8Printable(missing));
    }

    void listsChoices()
    {
        const Model model(colorTypeOption + ppdOption("Empty", {}));
        QStringList order;
        const auto texts = model->choicesWithValuesForOptionOrder(colorType, &order).value();
        QCOMPARE(order, (QStringList{u"Auto"_s, u"Color"_s, mono}));
        QCOMPARE(model->choicesForOption(colorType).value(), order);
        QCOMPARE(texts.values(), (QStringList{u"Automatic"_s, u"Colour"_s, u"Black & White"_s}));
        for (const QString &option : {u"Empty"_s, u"Missing"_s}) {
            QVERIFY(!model->choicesForOption(option));
            QVERIFY(!model->choicesWithValuesForOptionOrder(option, &order));
            QVERIFY(!model->localizedChoicesForOptionWithBundle(option, nullptr));
            QVERIFY(!model->defaultChoiceForOption(option));
        }
        QCOMPARE(order.size(), 3); // not changed
    }

    void tellsDefaultAndMarkedChoice()
    {
        Model model(colorTypeOption +
                    "*OpenUI *Odd: PickOne\n*DefaultOdd: Gone\n*Odd 1: \"\"\n*CloseUI: *Odd\n");
        const QString odd = u"Odd"_s;
        model->markChoiceForOption(1, odd); // not a string
        model->markChoiceForOption(u"1"_s, QVariant());
        model->markChoiceForOption(colorType, mono); // arguments in the wrong order
        QCOMPARE(model->markedChoiceForOption(colorType)->choice, u"Auto"_s);
        QVERIFY(!model->markedChoiceForOption(odd));
        QVERIFY(!model->defaultChoiceForOption(odd));
        model->markChoiceForOption(mono, colorType);
        QCOMPARE(model->markedChoiceForOption(colorType).value(),
                 (QVPPDChoice_M880{mono, u"Black & White"_s}));
        QCOMPARE(model->defaultChoiceForOption(colorType).value(),
                 (QVPPDChoice_M880{u"Auto"_s, u"Automatic"_s}));
        model.ppd.unmarkAll();
        QVERIFY(!model->markedChoiceForOption(colorType));
        QVERIFY(model->localizedMarkedChoiceForOptionWithBundle(colorType, nullptr).isNull());
    }

    void localizes()
    {
        TestBundle files;
        files.writeStrings(u"en"_s, u"Localizable"_s,
                           {{u"ColorType"_s, u"Colour mode"_s}, {u"ColorType:Mono"_s, u"Monochrome"_s}});
        const auto bundle = files.open();
        const Model model(colorTypeOption + ppdOption("Halftone/Half Tone", {"Auto"}));
        model->markChoiceForOption(mono, colorType);
        const auto texts = [&](const platform::Bundle *source) {
            QStringList all{model->localizedOptionNameWithBundle(colorType, source)};
            const auto choices = model->localizedChoicesForOptionWithBundle(colorType, source);
            for (const QVPPDChoice_M880 &choice : *choices)
                all.append(choice.text);
            all.append(model->localizedMarkedChoiceForOptionWithBundle(colorType, source));
            return all.join(u", ");
        };
        QCOMPARE(texts(bundle.get()), u"Colour mode, Automatic, Colour, Monochrome, Monochrome"_s);
        QCOMPARE(texts(nullptr), u"Colour Type, Automatic, Colour, Black & White, Black & White"_s);
        QCOMPARE(model->localizedOptionNameWithBundle(u"Halftone"_s, bundle.get()), u"Half Tone"_s);
        QVERIFY(model->localizedOptionNameWithBundle(u"Missing"_s, bundle.get()).isNull());
    }

    void leavesOutInvalidText()
    {
        const Model model(
            "*ModelName: \"Orb\xff\"\n*Note First: \"cut\xc3\"\n*Note Second: \"whole\"\n" +
            ppdOption("Paper/Pa\xffper", {"Plain/Plain paper", "Bond/Bo\xffnd", "Card/Ca\xffrd"}));
        const QString paper = u"Paper"_s;
        QVERIFY(model->modelname().isNull());
        QVERIFY(model->localizedOptionNameWithBundle(paper, nullptr).isNull());
        QCOMPARE(model->valuesForAttribute(u"Note"_s), QStringList{u"whole"_s});
        QCOMPARE(model->choicesForOption(paper)->size(), 3); // the keywords are valid
        QCOMPARE(model->choicesWithValuesForOptionOrder(paper, nullptr)->size(), 1);
        TestBundle files; // has a text for one of the two
        files.writeStrings(u"en"_s, u"Localizable"_s, {{u"Paper:Card"_s, u"Thick"_s}});
        const auto bundle = files.open();
        QCOMPARE(model->localizedChoicesForOptionWithBundle(paper, nullptr)->size(), 1);
        const auto localized = model->localizedChoicesForOptionWithBundle(paper, bundle.get());
        QCOMPARE(localized.value(),
                 (QList<QVPPDChoice_M880>{{u"Plain"_s, u"Plain paper"_s}, {u"Card"_s, u"Thick"_s}}));
        model->markChoiceForOption(u"Bond"_s, paper); // can be marked without a text
        QCOMPARE(model->markedChoiceForOption(paper).value(), (QVPPDChoice_M880{u"Bond"_s, QString()}));
    }

    void readsRepeatedAttributes()
    {
        const Model model("*Finisher Left: \"z\"\n*Finisher Right: \"a\"\n*Finisher Top: \"m\"\n");
        QCOMPARE(model->valuesForAttribute(u"Finisher"_s), (QStringList{u"z"_s, u"a"_s, u"m"_s}));
        QCOMPARE(model->valuesForAttribute(longName + longName), QStringList());
    }

    void readsInstallableOptions()
    {
        const QByteArray options =
            ppdOption("Tray2", {"False", "True"}) + ppdOption("Disk", {"None", "Hard"});
        Model model(ppdGroup("InstallableOptions/Extras", options));
        model->markChoiceForOption(u"True"_s, u"Tray2"_s);
        QCOMPARE(model->chosenInstallableOptions().value(),
                 (QMap<QString, QString>{{u"Tray2"_s, u"True"_s}, {u"Disk"_s, u"None"_s}}));
        model.ppd.unmarkAll();
        QVERIFY(model->chosenInstallableOptions().value().isEmpty());
        QVERIFY(!Model(ppdGroup("Extras/InstallableOptions", options))->chosenInstallableOptions());
    }
};

QTEST_GUILESS_MAIN(PpdModelTest)
#include "ppd_model_test.moc"
