// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"
#include "tests/support/test_bundle.h"

#include "platform/layout_loader.h"
#include "platform/value_transformer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>

using platform::Exception;
using platform::TopLevelObjects;
using namespace Qt::StringLiterals;

namespace {

class InverseTransformer : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType(QMetaType::Bool); }
    QVariant transformedValue(const QVariant &value) const override { return !value.toBool(); }
};

class SampleOwner : public platform::LayoutOwner
{
public:
    std::vector<platform::Outlet> outlets() override
    {
        return {platform::outlet(u"view"_s, &m_view), platform::outlet(u"title"_s, &m_title)};
    }
    std::vector<platform::Action> actions() override
    {
        return {{u"reload"_s, [this](QWidget *sender) { m_senders.append(sender); }},
                {u"raise"_s, [](QWidget *) { throw Exception(Exception::rangeName, u"from an action"_s); }}};
    }
    platform::KeyValueObject *keyValueObject() override { return &m_model; }

    QWidget *m_view = nullptr;
    QLabel *m_title = nullptr;
    QList<QWidget *> m_senders;
    SampleModel m_model;
};

// One <widget> with a text and a dynamic property given as "name=value".
QByteArray widget(const QByteArray &cls, const QByteArray &name, const QByteArray &text = {},
                  const QByteArray &property = {})
{
    QByteArray xml = "<widget class=\"" + cls + "\" name=\"" + name + "\">";
    if (!text.isEmpty())
        xml += "<property name=\"text\"><string>" + text + "</string></property>";
    const qsizetype equals = property.indexOf('=');
    if (equals > 0)
        xml += "<property name=\"" + property.left(equals) + "\" stdset=\"0\"><string>" +
               property.mid(equals + 1) + "</string></property>";
    return xml + "</widget>\n";
}

// The form "Form" with these widgets below a title.
TestBundle &operator<<(TestBundle &files, const QByteArray &widgets)
{
    files.writeLayout(u"Form"_s, (widget("QLabel", "title", "Print &amp;mode") + widgets).trimmed(),
                      {u"TextField"_s, u"Unregistered"_s});
    return files;
}

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
    void clicksRunActions();
    void translatesWithTheBundleAlone();
    void misfitsAreNamed_data();
    void misfitsAreNamed();
    void brokenFilesAreNamed();
    void compiledFormStandsForItsFile();

private:
    // Why the form cannot be loaded; null if it can, or the complete message if it does not contain the file.
    static QString problemOf(const TestBundle &files);
};

QString LayoutLoaderTest::problemOf(const TestBundle &files)
{
    SampleOwner owner;
    const auto bundle = files.open();
    try {
        platform::loadLayout(*bundle, u"Form"_s, &owner);
    } catch (const Exception &exception) {
        owner.m_model.setNumber(1); // no observers are left
        if (owner.m_view || owner.m_title || !QApplication::allWidgets().isEmpty())
            return u"something is left behind"_s;
        const QString start = u"LayoutException: "_s + bundle->layoutPath(u"Form"_s) + u": "_s;
        const QString message = exception.description();
        return message.startsWith(start) ? message.mid(start.size()) : message;
    }
    return {};
}

void LayoutLoaderTest::initTestCase()
{
    platform::ValueTransformer::setValueTransformerForName(std::make_shared<InverseTransformer>(),
                                                           u"Inverse"_s);
}

void LayoutLoaderTest::fillsOutletsAndBinds()
{
    TestBundle files;
    files << widget("QSlider", "slider", {}, "bind_value=child.number") +
                 widget("QLabel", "label", {}, "bind_enabled=flag | Inverse") +
                 widget("QCheckBox", "box", "Skip", "bind_checked=flag");
    SampleModel child;
    SampleOwner owner;
    owner.m_model.setChild(&child);
    owner.m_model.setFlag(true);
    const TopLevelObjects objects = platform::loadLayout(*files.open(), u"Form"_s, &owner);
    QCOMPARE(objects.size(), 1U);
    QCOMPARE(objects.front().get(), owner.m_view);
    QCOMPARE(owner.m_title->text(), u"Print &mode"_s);

    auto *label = find<QLabel>(objects, "label");
    QVERIFY(!label->isEnabled());
    QTest::mouseClick(find<QCheckBox>(objects, "box"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(!owner.m_model.flag());
    QVERIFY(label->isEnabled());
    QTest::keyClick(find<QSlider>(objects, "slider"), Qt::Key_End);
    QCOMPARE(child.number(), 99);
}

void LayoutLoaderTest::clicksRunActions()
{
    TestBundle files;
    files << widget("QPushButton", "go", "Reload", "action=reload") +
                 widget("QPushButton", "bad", "Raise", "action=raise");
    SampleOwner owner;
    const TopLevelObjects objects = platform::loadLayout(*files.open(), u"Form"_s, &owner);
    auto *button = find<QPushButton>(objects, "go");
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(owner.m_senders, (QList<QWidget *>{button, button}));
    QTest::ignoreMessage(QtWarningMsg, "RangeException: from an action");
    QTest::mouseClick(find<QPushButton>(objects, "bad"), Qt::LeftButton);
}

void LayoutLoaderTest::translatesWithTheBundleAlone()
{
    TestBundle files;
    files.writeStrings(u"de"_s, u"Form"_s, {{u"Print &mode"_s, u"Druck&art"_s}, {u"One"_s, u"Eins"_s}});
    files << "<widget class=\"QComboBox\" name=\"combo\">"
             "<item><property name=\"text\"><string>One</string></property></item>"
             "<item><property name=\"text\"><string>Two</string></property></item></widget>";
    SampleOwner owner;
    const TopLevelObjects objects =
        platform::loadLayout(*files.open(QLocale(QLocale::German)), u"Form"_s, &owner);
    QCOMPARE(owner.m_title->text(), u"Druck&art"_s);
    QCOMPARE(find<QComboBox>(objects, "combo")->itemText(0), u"Eins"_s);
    QCOMPARE(find<QComboBox>(objects, "combo")->itemText(1), u"Two"_s);
    QCOMPARE(QCoreApplication::translate("Form", "One"), u"One"_s);
}

void LayoutLoaderTest::misfitsAreNamed_data()
{
    QTest::addColumn<QByteArray>("widgets");
    QTest::addColumn<QString>("problem");
    const auto row = [](const QByteArray &widgets, const char *problem) {
        QTest::newRow(problem) << widgets << QString::fromLatin1(problem);
    };
    const auto slider = [&row](const QByteArray &property, const char *problem) {
        row(widget("QSlider", "bar", {}, property), problem);
    };
    row(widget("QSlidr", "bar"), R"(widget "bar" is of the unknown class "QSlidr")");
    row(widget("Unregistered", "bar"), R"(widget "bar" is of the unknown class "Unregistered")");
    row("<widget class=\"QFrame\" name=\"bar\"><layout class=\"QVBoxLayot\" name=\"row\"/></widget>",
        R"(layout "row" is of the unknown class "QVBoxLayot")");
    slider("bind_valu=number",
           R"(widget "bar": bind_valu = "number": QSlider has no writable property "valu")");
    slider("bind_sizeHint=number",
           R"(widget "bar": bind_sizeHint = "number": QSlider has no writable property "sizeHint")");
    slider("bind_value=numbr", R"(widget "bar": bind_value = "numbr": SampleModel: undefined key "numbr")");
    slider("bind_value=number | Invers", R"(widget "bar": bind_value: there is no transformer "Invers")");
    for (const QByteArray binding : {"", "child..number", "number |", "number | Inverse | Inverse", "a b"}) {
        const QByteArray problem =
            R"(widget "bar": bind_value is ")" + binding + R"(", not "key.path" or "key.path | Transformer")";
        slider("bind_value=" + binding, problem.constData());
    }
    slider("action=reload", R"(widget "bar": action "reload": a QSlider is never clicked)");
    row(widget("QPushButton", "go", "Go", "action=reloaf"), R"(widget "go": there is no action "reloaf")");
    slider("delegate=Stop", R"(widget "bar": delegate "Stop": a QSlider is no text field)");
    row(widget("TextField", "code", {}, "delegate=Stop"), R"(widget "code": there is no delegate "Stop")");
}

void LayoutLoaderTest::misfitsAreNamed()
{
    QFETCH(QByteArray, widgets);
    TestBundle files;
    QTEST(problemOf(files << widgets), "problem");
}

void LayoutLoaderTest::brokenFilesAreNamed()
{
    TestBundle files;
    QCOMPARE(problemOf(files), u"No such file or directory"_s);
    const auto problem = [&files](const QByteArray &contents) {
        files.writeFile(u"layouts/Form.ui"_s, contents);
        return problemOf(files);
    };
    QVERIFY(problem("<ui version=\"4.0\">\n<class>Form</class>\n<widget class=").contains(u"line 3"_s));
    QVERIFY(problem("<html/>").contains(u"<ui>"_s));
    QVERIFY(!problem("<ui version=\"4.0\"><class>Form</class></ui>").isEmpty());
    QCOMPARE(problem("<ui version=\"4.0\">" + widget("QWidget", "view") + "</ui>"),
             u"there is no widget for outlet \"title\""_s);
    QCOMPARE(problem("<ui version=\"4.0\">" + widget("QSlider", "title") + "</ui>"),
             u"widget \"title\": outlet \"title\" takes no QSlider"_s);
}

// A compiled form stands for the file that it was compiled from, not for another or a missing one.
void LayoutLoaderTest::compiledFormStandsForItsFile()
{
    TestBundle files;
    files.writeStrings(u"en"_s, u"Form"_s, {{u"Mode"_s, u"Compiled mode"_s}});
    const auto make = []() -> std::unique_ptr<QWidget> {
        auto form = std::make_unique<QWidget>();
        auto *title = new QLabel(QCoreApplication::translate("Form", "Mode"), form.get());
        title->setObjectName(u"title"_s);
        return form;
    };
    const QByteArray text = QByteArrayLiteral("a form");
    const QByteArray digest = QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
    SampleOwner owner;
    const auto load = [&] {
        return platform::loadLayout(*files.open(), u"Form"_s, &owner, {make, digest.constData()});
    };
    QVERIFY_THROWS_EXCEPTION(Exception, load());
    files.writeFile(u"layouts/Form.ui"_s, text);
    {
        const TopLevelObjects objects = load();
        QCOMPARE(owner.m_title->text(), u"Compiled mode"_s);
    }
    files.writeFile(u"layouts/Form.ui"_s, text + ' ');
    QVERIFY_THROWS_EXCEPTION(Exception, load());
}

QTEST_MAIN(LayoutLoaderTest)
#include "layout_loader_test.moc"
