// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/color_settings_1_panel.h"
#include "platform/bundle.h"
#include "plugin/panel_roster.h"
#include "tests/panels/panel_fixture.h"
#include "tests/support/paths.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <cups/ppd.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList languages{u"en"_s, u"de"_s, u"fr"_s, u"ja"_s, u"es"_s, u"it"_s};

QString describe(const QWidget *widget)
{
    const QSize wanted = widget->sizeHint();
    return u"%1 “%2” is %3x%4, wants %5x%6"_s.arg(widget->objectName(), widget->property("text").toString())
        .arg(widget->width())
        .arg(widget->height())
        .arg(wanted.width())
        .arg(wanted.height());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

// The size that a widget lacks for its text; 0 by 0 if it fits.
QSize clipped(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    QSize wanted(widget->sizeHint().width(), widget->minimumSizeHint().height());
    if (label && label->wordWrap())
        wanted = {label->width(), label->heightForWidth(label->width())};
    return {qMax(0, wanted.width() - widget->width()), qMax(0, wanted.height() - widget->height())};
}

bool showsText(const QWidget *widget)
{
    return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget);
}

// Texts to translate, by their context.
QList<std::pair<QByteArray, QString>> textsOfLayout(const QString &path)
{
    QXmlStreamReader reader(contents(path));
    QByteArray context;
    QList<std::pair<QByteArray, QString>> texts;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"class" && context.isEmpty())
            context = reader.readElementText().toUtf8();
        else if (reader.name() == u"string" && reader.attributes().value("notr"_L1) != u"true")
            texts.emplace_back(context, reader.readElementText());
    }
    return texts;
}

QStringList localizableKeys()
{
    const QByteArray file = contents(sourcePath("/resources/strings/localizable_keys.cpp"));
    QStringList keys;
    static const QRegularExpression key(u"\"Localizable\", \"([^\"]+)\""_s);
    auto matches = key.globalMatch(QString::fromUtf8(file));
    while (matches.hasNext())
        keys += matches.next().captured(1);
    return keys;
}

// The texts of a PPD in a language: for "Translation OPTION" and for "OPTION CHOICE". Read from its lines,
// since libcups keeps those of one language only.
QHash<QString, QString> ppdTexts(const QByteArray &ppdName, const QString &language)
{
    const QByteArray file = contents(buildPath("/ppds/%1.ppd").arg(QLatin1String(ppdName)));
    const QRegularExpression line(u"^\\*%1\\.(\\w+ [^/]+)/(.*): \"\"$"_s.arg(language),
                                  QRegularExpression::MultilineOption);
    QHash<QString, QString> texts;
    auto matches = line.globalMatch(QString::fromUtf8(file));
    while (matches.hasNext()) {
        const auto match = matches.next();
        texts.insert(match.captured(1), match.captured(2));
    }
    return texts;
}

} // namespace

class PanelLayoutsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makeUpTheDialogInOrder();
    void fitAndCanBeReached_data();
    void fitAndCanBeReached();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void textsAgreeWithThePpd_data();
    void textsAgreeWithThePpd();
    void panelsHaveGermanNames();

private:
    static void resizeToLeast(QWidget *view);
    void checkView(QWidget *view);
};

void PanelLayoutsTest::makeUpTheDialogInOrder()
{
    PanelFixture dialog("kelm880");
    QStringList kinds;
    for (const auto &panel : dialog.panels())
        kinds += panel->panelKind();
    const QString kind = u"com.kelmar.pde.%1"_s;
    QCOMPARE(kinds, (QStringList{kind.arg(u"print-mode"), kind.arg(u"color-settings-1"),
                                 kind.arg(u"color-settings-2")}));

    QVPDEFactory_M880 factory; // without a bundle there are no layouts, so no panel can be created
    factory.initWithBundle(nullptr);
    for (const PanelClass &panel : factory.loadablePDEs()) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(panel.className + u"\" was not loaded"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no bundle to load"_s));
    }
    QVERIFY(factory.PDEPanelsForTypeWithHostInfo(platform::printDialogPanelType, &dialog.host)->empty());
}

void PanelLayoutsTest::fitAndCanBeReached_data()
{
    QTest::addColumn<QByteArray>("ppd");
    QTest::addColumn<QString>("language");
    for (const QByteArray ppd : {"kelm880", "kelo2600"}) {
        for (const QString &language : languages)
            QTest::addRow("%s %s", ppd.constData(), qPrintable(language)) << ppd << language;
    }
}

void PanelLayoutsTest::fitAndCanBeReached()
{
    QFETCH(const QByteArray, ppd);
    QFETCH(const QString, language);
    PanelFixture dialog(ppd, QLocale(language));
    for (const auto &panel : dialog.panels()) {
        auto *base = dynamic_cast<QVPDE_M880 *>(panel.get());
        QWidget *view = dialog.show(base);
        // If two settings conflict, the panel must have space to show that.
        if (base->supportedPPDOptionKeys().contains(u"ColorType"_s))
            base->setValueForKey(u"Mono"_s, u"ColorType"_s);
        resizeToLeast(view);
        checkView(view);
        if (auto *colors = dynamic_cast<QVPDEColorSettings1_M880 *>(base); colors && colors->hasAdvanced()) {
            colors->setCurrentView(widget<QWidget>(view, "advancedView"));
            resizeToLeast(view);
            checkView(view);
        }
        view->hide();
    }
}

// As a layout does: the height of a view depends on its width.
void PanelLayoutsTest::resizeToLeast(QWidget *view)
{
    view->resize(view->minimumSizeHint());
    view->resize(view->minimumSizeHint());
}

void PanelLayoutsTest::checkView(QWidget *view)
{
    QCoreApplication::processEvents();
    QHash<QString, QString> mnemonics;
    for (QWidget *widget : view->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (showsText(widget))
            QVERIFY2(clipped(widget) == QSize(0, 0), qPrintable(describe(widget)));
        QVERIFY2(view->rect().contains(QRect(widget->mapTo(view, QPoint()), widget->size())),
                 qPrintable(describe(widget)));
        const QString mnemonic = QKeySequence::mnemonic(widget->property("text").toString()).toString();
        const auto *label = qobject_cast<QLabel *>(widget);
        if ((label && label->buddy()) || (qobject_cast<QAbstractButton *>(widget) && !mnemonic.isEmpty())) {
            QVERIFY2(!mnemonic.isEmpty(), qPrintable(describe(widget)));
            QVERIFY2(!mnemonics.contains(mnemonic),
                     qPrintable(describe(widget) + u" and "_s + mnemonics.value(mnemonic)));
            mnemonics.insert(mnemonic, describe(widget));
        }
        if (widget->focusPolicy() & Qt::TabFocus) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(describe(widget)));
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(describe(widget)));
        }
    }
}

void PanelLayoutsTest::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages)
        QTest::addRow("%s", qPrintable(language)) << language;
}

void PanelLayoutsTest::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    const QString folder = buildPath("/bin/OrbM880.bundle");
    QTranslator table;
    QVERIFY(table.load(folder + u"/strings/OrbM880_%1.qm"_s.arg(language)));
    const QFileInfoList layouts = QDir(sourcePath("/resources/layouts")).entryInfoList({u"*.ui"_s});
    QVERIFY(!layouts.isEmpty());
    for (const QFileInfo &layout : layouts) {
        for (const auto &[context, text] : textsOfLayout(layout.filePath()))
            QVERIFY2(!table.translate(context.constData(), text.toUtf8().constData()).isEmpty(),
                     qPrintable(text));
    }
    const QStringList keys = localizableKeys();
    QVERIFY(keys.size() > 40);
    for (const QString &key : keys)
        QVERIFY2(!table.translate("Localizable", key.toUtf8().constData()).isEmpty(), qPrintable(key));
}

void PanelLayoutsTest::textsAgreeWithThePpd_data()
{
    fitAndCanBeReached_data();
}

// The host shows the PPD's texts, the panels those of the string tables; they must be consistent for the
// user. A panel may omit a word of the heading above the control, such as "Balance".
void PanelLayoutsTest::textsAgreeWithThePpd()
{
    QFETCH(const QByteArray, ppd);
    QFETCH(const QString, language);
    PanelFixture dialog(ppd, QLocale(language));
    const QHash<QString, QString> translated = ppdTexts(ppd, language);
    QCOMPARE(translated.isEmpty(), language == u"en");
    int compared = 0;
    for (const auto &panel : dialog.panels()) {
        for (const QString &key : dynamic_cast<QVPDE_M880 *>(panel.get())->supportedPPDOptionKeys()) {
            const ppd_option_t *option = ppdFindOption(dialog.host.ppd, key.toLatin1().constData());
            if (!option || key.contains(u"Digit"_s))
                continue;
            QString text = translated.value(u"Translation "_s + key, QString::fromUtf8(option->text));
            const QString name = dialog.bundle()->localizedStringForKey(key);
            QVERIFY2(!name.isEmpty() && text.contains(name, Qt::CaseInsensitive),
                     qPrintable(name + u" is not in "_s + text));
            for (int i = 0; i < option->num_choices; ++i) {
                const QString choice = QString::fromLatin1(option->choices[i].choice);
                text = translated.value(key + u' ' + choice, QString::fromUtf8(option->choices[i].text));
                QCOMPARE(dialog.bundle()->localizedStringForKey(key + u':' + choice, text), text);
                ++compared;
            }
        }
    }
    QVERIFY(compared > 100);
}

void PanelLayoutsTest::panelsHaveGermanNames()
{
    const PanelFixture english("kelm880", QLocale(QLocale::English));
    const PanelFixture german("kelm880", QLocale(QLocale::German));
    QCOMPARE(german.panels().front()->panelName(), u"Druckmodus"_s);
    for (size_t i = 0; i < german.panels().size(); ++i)
        QVERIFY(german.panels()[i]->panelName() != english.panels()[i]->panelName());
}

QTEST_MAIN(PanelLayoutsTest)
#include "panel_layouts_test.moc"
