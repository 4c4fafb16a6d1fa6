// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/extensions/extensions.h"

#include "platform/bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <exception>
#include <iterator>
#include <optional>
#include <utility>

namespace host {

namespace {

struct ExtensionsText
{
    Q_DECLARE_TR_FUNCTIONS(ExtensionsText)
};

std::optional<platform::PrintDialogPanels> panelsOf(platform::PrintDialogExtension *extension,
                                                    platform::PrintDialogHost *host, QString *error)
{
    try {
        return extension->PDEPanelsForTypeWithHostInfo(platform::printDialogPanelType, host);
    } catch (const std::exception &exception) {
        *error = QString::fromUtf8(exception.what());
    }
    return std::nullopt;
}

} // namespace

Extensions::Extensions(QStringList bundleFolders) : m_folders(std::move(bundleFolders)) {}

Extensions::~Extensions() = default;

QStringList Extensions::installedBundles(const QString &programFolder)
{
    QStringList found;
    for (const QString &place : {programFolder, programFolder + QStringLiteral("/../lib/kelmar-print")}) {
        const QDir folder(place);
        // Not with a name filter of QDir, which uses a regular expression and allocates half a megabyte on
        // first use.
        for (const QString &name : folder.entryList(QDir::Dirs, QDir::Name)) {
            if (name.endsWith(QLatin1String(".bundle"), Qt::CaseInsensitive))
                found.append(folder.absoluteFilePath(name));
        }
        if (!found.isEmpty())
            break;
    }
    return found;
}

void Extensions::open(QStringList *problems)
{
    if (std::exchange(m_opened, true))
        return;
    for (const QString &folder : m_folders) {
        QString error;
        if (auto bundle = platform::Bundle::open(folder, QLocale::system(), &error))
            m_loaded.push_back({std::move(bundle), nullptr});
        else
            problems->append(ExtensionsText::tr("The print extension cannot be used: %1").arg(error));
    }
}

platform::PrintDialogExtension *Extensions::principalObject(Loaded *loaded, QString *error)
{
    if (loaded->extension)
        return loaded->extension;
    platform::PrintDialogExtension *extension = loaded->bundle->principalObject(error);
    if (extension && extension->initWithBundle(loaded->bundle))
        loaded->extension = extension;
    return loaded->extension;
}

bool Extensions::serves(const Loaded &loaded, const QString &modelName)
{
    const QString type = loaded.bundle->infoValueForKey(platform::Bundle::panelTypeKey).toString();
    return type == platform::printDialogPanelType && loaded.bundle->servesModel(modelName);
}

Protection Extensions::protectionFor(const QString &modelName, QStringList *problems)
{
    open(problems);
    Protection protection;
    for (const Loaded &loaded : m_loaded) {
        if (serves(loaded, modelName))
            protection.add(Protection::from(*loaded.bundle));
    }
    return protection;
}

platform::PrintDialogPanels Extensions::panelsFor(const QString &modelName, platform::PrintDialogHost *host,
                                                  QStringList *problems)
{
    open(problems);
    platform::PrintDialogPanels panels;
    for (Loaded &loaded : m_loaded) {
        if (!serves(loaded, modelName))
            continue;
        QString error;
        auto *extension = principalObject(&loaded, &error);
        auto made = extension ? panelsOf(extension, host, &error) : std::nullopt;
        if (made)
            std::move(made->begin(), made->end(), std::back_inserter(panels));
        else if (!error.isEmpty())
            problems->append(ExtensionsText::tr("The print extension cannot be used: %1").arg(error));
    }
    return panels;
}

} // namespace host
