// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"
#include "tests/support/test_bundle.h"

#include "platform/binding.h"
#include "platform/layout_loader.h"
#include "platform/text_field.h"
#include "platform/value_transformer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>

using platform::Binding;
using platform::Exception;
using platform::TextField;
using platform::TopLevelObjects;

namespace {

class InverseTransformer : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType(QMetaType::Bool); }
    QVariant transformedValue(const QVariant &value) const override { return !value.toBool(); }
};

class FixedText : public platform::TextFieldDelegate
{
public:
    void controlTextDidChange(TextField *, const QVariantMap &) override {}
    bool controlTextShouldEndEditing(TextField *control, QLineEdit *) override
    {
        control->setText(QStringLiteral("from the delegate"));
        return true;
    }
};

class Gauge : public QSlider
{
    Q_OBJECT
public:
    explicit Gauge(QWidget *parent) : QSlider(parent) {}
};

class SampleOwner : public platform::LayoutOwner
{
public:
    std::vector<platform::Outlet> outlets() override
    {
        return {platform::outlet(QStringLiteral("view"), &m_view),
                platform::outlet(QStringLiteral("title"), &m_title)};
    }
    std::vector<platform::Action> actions() override
    {
        return {{QStringLiteral("reload"), [this](QWidget *sender) { m_senders.append(sender); }},
                {QStringLiteral("raise"),
                 [](QWidget *) { throw Exception(Exception::rangeName, QStringLiteral("from an action")); }}};
    }
    platform::KeyValueObject *keyValueObject() override { return &m_model; }

    QWidget *m_view = nullptr;
    QLabel *m_title = nullptr;
    QList<QWidget *> m_senders;
    SampleModel m_model;
};

QByteArray element(const char *tag, const char *attributes, const QByteArray &contents)
{
    return QByteArray("<") + tag + ' ' + attributes + '>' + contents + "</" + tag + '>';
}

// One <widget> with a text and dynamic properties given as "name=value".
QByteArray widget(const QByteArray &cls, const QByteArray &name, const QByteArray &text = {},
                  const QList<QByteArray> &properties = {})
{
    QByteArray contents;
    if (!text.isEmpty())
        contents += "<property name=\"text\"><string>" + text + "</string></property>";
    for (const QByteArray &property : properties) {
        const qsizetype equals = property.indexOf('=');
        contents += element("property", "name=\"" + property.left(equals) + "\" stdset=\"0\"",
                            "<string>" + property.mid(equals + 1) + "</string>");
    }
    return element("widget", "class=\"" + cls + "\" name=\"" + name + '"', contents);
}

const QByteArray title = widget("QLabel", "title", "Print &amp;mode");
const QString form = QStringLiteral("Form");

template <typename W>
W *find(const TopLevelObjects &objects, const char *name)
{
    return objects.front()->findChild<W *>(QString::fromLatin1(name));
}

} // namespace

class LayoutLoaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void fillsOutletsAndBinds();
    void actionsAndDelegates();
    void registeredClassesAndFiles();
    void translatesWithTheBundleAlone();
    void misfitsAreNamed_data();
    void misfitsAreNamed();
    void brokenFilesAreNamed_data();
    void brokenFilesAreNamed();
    void tenControls();
};

void LayoutLoaderTest::initTestCase()
{
    platform::ValueTransformer::setValueTransformerForName(std::make_shared<InverseTransformer>(),
                                                           QStringLiteral("Inverse"));
    platform::TextFieldDelegate::setDelegateForName(std::make_shared<FixedText>(),
                                                    QStringLiteral("Delegate"));
}

void LayoutLoaderTest::fillsOutletsAndBinds()
{
    TestBundle files;
    files.writeLayout(form, title + '\n' +
                                widget("QSlider", "slider", {},
                                       {"bind_value=child.number", "bind_enabled=flag | Inverse"}) +
                                '\n' + widget("QCheckBox", "box", "Skip", {"bind_checked=flag"}));
    SampleModel child;
    SampleOwner owner;
    owner.m_model.setChild(&child);
    owner.m_model.setFlag(true);
    const TopLevelObjects objects = platform::loadLayout(*files.open(), form, &owner);
    QCOMPARE(objects.size(), 1U);
    QCOMPARE(objects.front().get(), owner.m_view);
    QCOMPARE(owner.m_title->text(), QStringLiteral("Print &mode"));

    auto *slider = find<QSlider>(objects, "slider");
    QVERIFY(!slider->isEnabled());
    QTest::mouseClick(find<QCheckBox>(objects, "box"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(!owner.m_model.flag());
    QVERIFY(slider->isEnabled());
    slider->setPageStep(10);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(child.number(), 10);
    child.setNumber(4);
    QCOMPARE(slider->value(), 4);
}

void LayoutLoaderTest::actionsAndDelegates()
{
    TestBundle files;
    files.writeLayout(form,
                      title + '\n' + widget("QPushButton", "go", "Reload", {"action=reload"}) + '\n' +
                          widget("QPushButton", "bad", "Raise", {"action=raise"}) + '\n' +
                          widget("TextField", "code", {}, {"delegate=Delegate", "bind_stringValue=text"}),
                      {QStringLiteral("TextField")});
    SampleOwner owner;
    const TopLevelObjects objects = platform::loadLayout(*files.open(), form, &owner);
    auto *button = find<QPushButton>(objects, "go");
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(owner.m_senders, (QList<QWidget *>{button, button}));
    QTest::ignoreMessage(QtWarningMsg, "RangeException: from an action");
    QTest::mouseClick(find<QPushButton>(objects, "bad"), Qt::LeftButton);

    auto *field = find<TextField>(objects, "code");
    QTest::keyClicks(field, QStringLiteral("12"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(owner.m_model.text(), QStringLiteral("from the delegate"));
}

void LayoutLoaderTest::registeredClassesAndFiles()
{
    TestBundle files;
    platform::registerLayoutWidget<Gauge>(QStringLiteral("Gauge"));
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(QDir().mkpath(files.folder() + QStringLiteral("/layouts")));
    QVERIFY(image.save(files.folder() + QStringLiteral("/layouts/picture.png")));
    const QByteArray picture = element("widget", "class=\"QLabel\" name=\"picture\"",
                                       "<property name=\"pixmap\"><pixmap>picture.png</pixmap></property>");
    files.writeLayout(form,
                      title + '\n' + widget("Gauge", "gauge", {}, {"bind_value=number"}) + '\n' + picture,
                      {QStringLiteral("Gauge")});
    SampleOwner owner;
    const TopLevelObjects objects = platform::loadLayout(*files.open(), form, &owner);
    QVERIFY(find<Gauge>(objects, "gauge"));
    QCOMPARE(find<QLabel>(objects, "picture")->pixmap().size(), QSize(3, 2));
}

void LayoutLoaderTest::translatesWithTheBundleAlone()
{
    TestBundle files;
    files.writeStrings(QStringLiteral("de"), form,
                       {{QStringLiteral("Print &mode"), QStringLiteral("Druck&art")},
                        {QStringLiteral("One"), QStringLiteral("Eins")}});
    const QByteArray combo = element("widget", "class=\"QComboBox\" name=\"combo\"",
                                     "<item><property name=\"text\"><string>One</string></property></item>"
                                     "<item><property name=\"text\"><string>Two</string></property></item>");
    files.writeLayout(form, title + '\n' + combo + '\n' + widget("QLabel", "empty"));
    SampleOwner owner;
    const TopLevelObjects objects = platform::loadLayout(*files.open(QLocale(QLocale::German)), form, &owner);
    QCOMPARE(owner.m_title->text(), QStringLiteral("Druck&art"));
    QCOMPARE(find<QComboBox>(objects, "combo")->itemText(0), QStringLiteral("Eins"));
    QCOMPARE(find<QComboBox>(objects, "combo")->itemText(1), QStringLiteral("Two"));
    QCOMPARE(QCoreApplication::translate("Form", "One"), QStringLiteral("One"));
}

void LayoutLoaderTest::misfitsAreNamed_data()
{
    QTest::addColumn<QByteArray>("widgets");
    QTest::addColumn<QStringList>("named"); // what the message must contain
    const auto row = [](const char *name, const QByteArray &widgets, const QStringList &named) {
        QTest::newRow(name) << widgets << named;
    };
    const auto slider = [](const QByteArray &property) {
        return title + '\n' + widget("QSlider", "bar", {}, {property});
    };
    const auto q = [](const char *text) { return QString::fromLatin1(text); };
    row("outlet missing", widget("QLabel", "titel"), {q("outlet \"title\"")});
    row("outlet of a wrong class", widget("QSlider", "title"), {q("widget \"title\""), q("QSlider")});
    row("unknown class", title + '\n' + widget("QSlidr", "bar"), {q("widget \"bar\""), q("\"QSlidr\"")});
    row("unregistered class", title + '\n' + widget("Unregistered", "bar"),
        {q("\"bar\""), q("\"Unregistered\"")});
    row("unknown layout",
        title + '\n' +
            element("widget", "class=\"QFrame\" name=\"box\"",
                    element("layout", "class=\"QVBoxLayot\" name=\"row\"", {})),
        {q("\"row\""), q("\"QVBoxLayot\"")});
    row("unknown property", slider("bind_valu=number"), {q("\"bar\""), q("bind_valu"), q("QSlider")});
    row("unknown key", slider("bind_value=numbr"), {q("\"bar\""), q("bind_value"), q("\"numbr\"")});
    row("unknown key in a path", slider("bind_value=stranger.number"), {q("\"bar\""), q("\"stranger\"")});
    row("unknown transformer", slider("bind_value=number | Invers"), {q("\"bar\""), q("\"Invers\"")});
    row("empty binding", slider("bind_value="), {q("\"bar\""), q("bind_value"), q("key.path | Transformer")});
    row("empty key in a path", slider("bind_value=child..number"), {q("\"bar\""), q("child..number")});
    row("empty transformer", slider("bind_value=number |"), {q("\"bar\""), q("\"number |\"")});
    row("two transformers", slider("bind_value=number | Inverse | Inverse"),
        {q("\"bar\""), q("| Inverse\"")});
    row("two keys", slider("bind_value=number flag"), {q("\"bar\""), q("number flag")});
    row("action never clicked", slider("action=reload"), {q("\"bar\""), q("\"reload\""), q("QSlider")});
    row("unknown action", title + '\n' + widget("QPushButton", "go", "Go", {"action=reloaf"}),
        {q("\"go\""), q("\"reloaf\"")});
    row("delegate of a slider", slider("delegate=Delegate"), {q("\"bar\""), q("\"Delegate\""), q("QSlider")});
    row("unknown delegate", title + '\n' + widget("TextField", "code", {}, {"delegate=Delegat"}),
        {q("\"code\""), q("\"Delegat\"")});
}

void LayoutLoaderTest::misfitsAreNamed()
{
    QFETCH(QByteArray, widgets);
    QFETCH(QStringList, named);
    TestBundle files;
    files.writeLayout(form, widgets, {QStringLiteral("TextField"), QStringLiteral("Unregistered")});
    const auto bundle = files.open();
    SampleOwner owner;
    try {
        platform::loadLayout(*bundle, form, &owner);
    } catch (const Exception &exception) {
        QCOMPARE(exception.name(), Exception::layoutName);
        QVERIFY2(exception.reason().startsWith(bundle->layoutPath(form) + QStringLiteral(": ")),
                 exception.what());
        for (const QString &text : named)
            QVERIFY2(exception.reason().contains(text), exception.what());
        QVERIFY(!owner.m_view && !owner.m_title);
        QVERIFY(QApplication::allWidgets().isEmpty());
        owner.m_model.setNumber(1);
        return;
    }
    QFAIL("no exception");
}

void LayoutLoaderTest::brokenFilesAreNamed_data()
{
    QTest::addColumn<QByteArray>("contents"); // nil for no file
    QTest::addColumn<QString>("problem");
    QTest::newRow("no file") << QByteArray() << "No such file";
    QTest::newRow("empty file") << QByteArray("") << "line 1";
    QTest::newRow("no XML") << QByteArray("layout") << "line 1";
    QTest::newRow("cut off") << QByteArray("<ui version=\"4.0\">\n<class>Form</class>\n<widget class=")
                             << "line 3";
    QTest::newRow("no form") << QByteArray("<html/>") << "<ui>";
    QTest::newRow("no widget") << QByteArray("<ui version=\"4.0\"><class>Form</class></ui>") << "";
}

void LayoutLoaderTest::brokenFilesAreNamed()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, problem);
    TestBundle files;
    if (!contents.isNull())
        files.writeFile(QStringLiteral("layouts/Form.ui"), contents);
    const auto bundle = files.open();
    SampleOwner owner;
    try {
        platform::loadLayout(*bundle, form, &owner);
    } catch (const Exception &exception) {
        QCOMPARE(exception.name(), Exception::layoutName);
        QVERIFY2(exception.reason().startsWith(bundle->layoutPath(form) + QStringLiteral(": ")),
                 exception.what());
        QVERIFY2(exception.reason().contains(problem), exception.what());
        QVERIFY(exception.reason().size() > bundle->layoutPath(form).size() + 5);
        return;
    }
    QFAIL("no exception");
}

void LayoutLoaderTest::tenControls()
{
    TestBundle files;
    QByteArray widgets = title;
    for (int i = 0; i < 10; ++i)
        widgets += '\n' + widget("QSlider", "bar" + QByteArray::number(i), {}, {"bind_value=number"});
    files.writeLayout(form, widgets);
    const auto bundle = files.open();
    SampleOwner owner;
    QBENCHMARK
    {
        QCOMPARE(platform::loadLayout(*bundle, form, &owner).size(), 1U);
    }
}

QTEST_MAIN(LayoutLoaderTest)
#include "layout_loader_test.moc"
