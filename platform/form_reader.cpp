// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/form_reader_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUiLoader>

#include <memory>

namespace {

// Creates widgets of registered classes, and records names that the base class would silently replace.
class WidgetBuilder : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        const platform::WidgetFactory factory = platform::layoutWidgetFactory(className);
        QWidget *widget = factory ? factory(parent) : QUiLoader::createWidget(className, parent, name);
        const bool isKnown = factory || className == QLatin1String("Line") ||
                             (widget && className == QLatin1String(widget->metaObject()->className()));
        if (!isKnown)
            note(QStringLiteral("widget"), name, className);
        if (widget)
            widget->setObjectName(name);
        return widget;
    }
    QLayout *createLayout(const QString &className, QObject *parent, const QString &name) override
    {
        QLayout *layout = QUiLoader::createLayout(className, parent, name);
        if (!layout)
            note(QStringLiteral("layout"), name, className);
        return layout;
    }
    const QString &problem() const { return m_problem; }
    void forgetProblem() { m_problem.clear(); }

private:
    void note(const QString &what, const QString &name, const QString &className)
    {
        if (m_problem.isEmpty())
            m_problem = QStringLiteral("%1 \"%2\" is of the unknown class \"%3\"").arg(what, name, className);
    }

    QString m_problem;
};

// Qt's loader loads all Designer plug-ins when it is constructed, Qt Quick included. This takes tens of
// milliseconds and only adds classes that layouts must not use. It is therefore constructed once, while no
// plug-in folder is set.
WidgetBuilder &widgetBuilder()
{
    static const std::unique_ptr<WidgetBuilder> builder = [] {
        const QStringList pluginFolders = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        auto made = std::make_unique<WidgetBuilder>();
        QCoreApplication::setLibraryPaths(pluginFolders);
        return made;
    }();
    return *builder;
}

} // namespace

extern "C" Q_DECL_EXPORT QWidget *kelmarReadForm(QFile *file, QString *problem)
{
    WidgetBuilder &builder = widgetBuilder();
    builder.forgetProblem();
    builder.setWorkingDirectory(QFileInfo(file->fileName()).dir());
    std::unique_ptr<QWidget> root(builder.load(file));
    *problem = builder.problem().isEmpty() ? builder.errorString() : builder.problem();
    return builder.problem().isEmpty() ? root.release() : nullptr;
}
