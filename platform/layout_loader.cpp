// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/layout_loader.h"

#include "platform/binding.h"
#include "platform/bundle.h"
#include "platform/exception.h"
#include "platform/form_reader_p.h"
#include "platform/key_value_object.h"
#include "platform/layout_translator_p.h"
#include "platform/logging.h"
#include "platform/text_field.h"
#include "platform/value_transformer.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLibrary>
#include <QMetaMethod>
#include <QMetaProperty>

#include <algorithm>

#include <dlfcn.h>

namespace platform {

LayoutOwner::~LayoutOwner() = default;

namespace {

// Filled by the form itself unless a widget has this name. The form's own object name is not available:
// Designer writes it as its class, which is the translation context.
const QString viewOutlet = QStringLiteral("view");

using WidgetFactories = QHash<QString, WidgetFactory>;

WidgetFactories &widgetFactories()
{
    static const WidgetFactory textField = [](QWidget *parent) -> QWidget * { return new TextField(parent); };
    static WidgetFactories factories{{QStringLiteral("platform::TextField"), textField},
                                     {QStringLiteral("TextField"), textField}};
    return factories;
}

// Loads libkelmar-forms.so, which is in the folder of this library. Null with a message on failure.
ReadForm formReader(QString *problem)
{
    Dl_info own{};
    dladdr(reinterpret_cast<const void *>(&formReader), &own);
    const QDir folder = QFileInfo(QFile::decodeName(own.dli_fname)).dir();
    QLibrary library(folder.absoluteFilePath(QStringLiteral("libkelmar-forms.so")));
    const auto read = reinterpret_cast<ReadForm>(library.resolve(readFormName));
    if (!read)
        *problem = library.errorString();
    return read;
}

// Calls an action of the owner. A child of the clicked widget.
class ActionCall : public QObject
{
    Q_OBJECT
public:
    ActionCall(QWidget *sender, Action action)
        : QObject(sender), m_sender(sender), m_action(std::move(action))
    {
    }

public Q_SLOTS:
    void run()
    {
        // The action may delete the widget, and thus this object.
        const auto call = m_action.run;
        try {
            call(m_sender);
        } catch (const Exception &exception) {
            qCWarning(lcPlatform).noquote() << exception.description();
        }
    }

private:
    QWidget *m_sender;
    Action m_action;
};

// Loads one layout.
class LayoutLoading
{
public:
    LayoutLoading(const Bundle &bundle, const QString &path, LayoutOwner *owner, const CompiledForm &compiled)
        : m_bundle(bundle), m_path(path), m_owner(owner), m_compiled(compiled)
    {
    }
    TopLevelObjects run();

private:
    [[noreturn]] void fail(const QString &what) const;
    [[noreturn]] void fail(const QObject *object, const QString &what) const;
    std::unique_ptr<QWidget> build() const;
    bool isCompiled(QFile *file) const;
    void fillOutlets(QWidget *root);
    void connectObject(QObject *object);
    void makeBinding(QObject *object, const QString &property, const QVariant &value);
    void connectAction(QObject *object, const QVariant &value);
    void connectDelegate(QObject *object, const QVariant &value);

    const Bundle &m_bundle;
    QString m_path;
    LayoutOwner *m_owner;
    const CompiledForm &m_compiled;
    std::vector<Action> m_actions;
    std::vector<Outlet> m_filled;
};

void LayoutLoading::fail(const QString &what) const
{
    throw Exception(Exception::layoutName, QStringLiteral("%1: %2").arg(m_path, what),
                    {{QStringLiteral("file"), m_path}});
}

void LayoutLoading::fail(const QObject *object, const QString &what) const
{
    fail(QStringLiteral("widget \"%1\": %2").arg(object->objectName(), what));
}

TopLevelObjects LayoutLoading::run()
{
    std::unique_ptr<QWidget> root = build();
    m_actions = m_owner->actions();
    try {
        fillOutlets(root.get());
        connectObject(root.get());
        const auto objects = root->findChildren<QObject *>();
        for (QObject *object : objects)
            connectObject(object);
    } catch (const Exception &) {
        for (const Outlet &outlet : m_filled)
            outlet.fill(nullptr);
        throw;
    }
    TopLevelObjects topLevel;
    topLevel.push_back(std::move(root));
    return topLevel;
}

bool LayoutLoading::isCompiled(QFile *file) const
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    const bool isRead = m_compiled.make && hash.addData(file);
    file->seek(0);
    return isRead && hash.result().toHex() == m_compiled.digest;
}

std::unique_ptr<QWidget> LayoutLoading::build() const
{
    const LayoutTranslator::Scope texts(m_bundle);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    if (isCompiled(&file))
        return m_compiled.make();
    QString problem;
    const ReadForm read = formReader(&problem);
    std::unique_ptr<QWidget> root(read ? read(&file, &problem) : nullptr);
    if (!root)
        fail(problem);
    return root;
}

void LayoutLoading::fillOutlets(QWidget *root)
{
    for (Outlet &outlet : m_owner->outlets()) {
        QWidget *widget = root->objectName() == outlet.name ? root : root->findChild<QWidget *>(outlet.name);
        if (!widget && outlet.name == viewOutlet)
            widget = root;
        if (!widget)
            fail(QStringLiteral("there is no widget for outlet \"%1\"").arg(outlet.name));
        m_filled.push_back(outlet);
        if (!outlet.fill(widget))
            fail(widget, QStringLiteral("outlet \"%1\" takes no %2")
                             .arg(outlet.name, QString::fromUtf8(widget->metaObject()->className())));
    }
}

void LayoutLoading::connectObject(QObject *object)
{
    const QList<QByteArray> names = object->dynamicPropertyNames();
    for (const QByteArray &name : names) {
        const QVariant value = object->property(name.constData());
        if (name.startsWith("bind_"))
            makeBinding(object, QString::fromUtf8(name.mid(5)), value);
        else if (name == "action")
            connectAction(object, value);
        else if (name == "delegate")
            connectDelegate(object, value);
    }
}

void LayoutLoading::makeBinding(QObject *object, const QString &property, const QVariant &value)
{
    const QString text = value.toString();
    const QStringList parts = text.split(QLatin1Char('|'));
    const QString keyPath = parts.first().trimmed();
    const QString transformerName = parts.size() > 1 ? parts[1].trimmed() : QString();
    const QStringList keys = keyPath.split(QLatin1Char('.'));
    const bool isPath = std::none_of(keys.begin(), keys.end(), [](const QString &key) {
        return key.isEmpty() || key.contains(QLatin1Char(' '));
    });
    if (!isPath || parts.size() > 2 || (parts.size() == 2 && transformerName.isEmpty()))
        fail(object, QStringLiteral("bind_%1 is \"%2\", not \"key.path\" or \"key.path | Transformer\"")
                         .arg(property, text));

    std::shared_ptr<const ValueTransformer> transformer;
    if (parts.size() == 2) {
        transformer = ValueTransformer::valueTransformerForName(transformerName);
        if (!transformer)
            fail(object,
                 QStringLiteral("bind_%1: there is no transformer \"%2\"").arg(property, transformerName));
    }
    try {
        Binding::bind(object, property, m_owner->keyValueObject(), keyPath, std::move(transformer));
    } catch (const Exception &exception) {
        fail(object, QStringLiteral("bind_%1 = \"%2\": %3").arg(property, text, exception.reason()));
    }
}

void LayoutLoading::connectAction(QObject *object, const QVariant &value)
{
    const QString name = value.toString();
    const auto action = std::find_if(m_actions.begin(), m_actions.end(),
                                     [&name](const Action &candidate) { return candidate.name == name; });
    if (action == m_actions.end())
        fail(object, QStringLiteral("there is no action \"%1\"").arg(name));
    const QMetaObject *meta = object->metaObject();
    const int clicked = meta->indexOfSignal("clicked()");
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget || clicked < 0)
        fail(object, QStringLiteral("action \"%1\": a %2 is never clicked")
                         .arg(name, QString::fromUtf8(meta->className())));
    auto *call = new ActionCall(widget, *action);
    const QMetaObject *callMeta = call->metaObject();
    QObject::connect(widget, meta->method(clicked), call, callMeta->method(callMeta->indexOfSlot("run()")));
}

void LayoutLoading::connectDelegate(QObject *object, const QVariant &value)
{
    const QString name = value.toString();
    auto *field = qobject_cast<TextField *>(object);
    if (!field)
        fail(object, QStringLiteral("delegate \"%1\": a %2 is no text field")
                         .arg(name, QString::fromUtf8(object->metaObject()->className())));
    std::shared_ptr<TextFieldDelegate> delegate = TextFieldDelegate::delegateForName(name);
    if (!delegate)
        fail(object, QStringLiteral("there is no delegate \"%1\"").arg(name));
    field->setDelegate(std::move(delegate));
}

} // namespace

TopLevelObjects loadLayout(const Bundle &bundle, const QString &name, LayoutOwner *owner)
{
    return loadLayout(bundle, name, owner, {});
}

TopLevelObjects loadLayout(const Bundle &bundle, const QString &name, LayoutOwner *owner,
                           const CompiledForm &compiled)
{
    return LayoutLoading(bundle, bundle.layoutPath(name), owner, compiled).run();
}

QString keyPathSetBy(const QWidget *control)
{
    const QMetaObject *cls = control->metaObject();
    for (const QByteArray &name : control->dynamicPropertyNames()) {
        const int property = name.startsWith("bind_") ? cls->indexOfProperty(name.mid(5).constData()) : -1;
        if (property >= 0 && cls->property(property).hasNotifySignal())
            return control->property(name.constData()).toString().section(QLatin1Char('|'), 0, 0).trimmed();
    }
    return {};
}

WidgetFactory layoutWidgetFactory(const QString &className)
{
    return widgetFactories().value(className);
}

void registerLayoutWidget(const QString &className, WidgetFactory factory)
{
    widgetFactories()[className] = std::move(factory);
}

} // namespace platform

#include "layout_loader.moc"
