// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "platform/print_dialog.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace host {

// The plug-in bundles of the program. Their Info.json is read on first use, and their code is loaded only for
// a printer that they support. Outlives every dialog, since the panels run that code.
class Extensions
{
public:
    // `bundleFolders` are the paths of the bundles.
    explicit Extensions(QStringList bundleFolders);
    ~Extensions();
    Extensions(const Extensions &) = delete;
    Extensions &operator=(const Extensions &) = delete;

    // The *.bundle folders for a program in this folder: in the folder itself, then in ../lib/kelmar-print.
    static QStringList installedBundles(const QString &programFolder);

    // The protection declared by the bundles that support this model. Opens the bundles, as does panelsFor().
    Protection protectionFor(const QString &modelName, QStringList *problems);
    // The panels of all bundles that support the dialog's panel type and this model, in order. Problems with
    // a bundle are added to `problems` and do not affect the others.
    platform::PrintDialogPanels panelsFor(const QString &modelName, platform::PrintDialogHost *host,
                                          QStringList *problems);

private:
    struct Loaded
    {
        std::shared_ptr<platform::Bundle> bundle;
        // owned by the bundle; null until its code is needed
        platform::PrintDialogExtension *extension = nullptr;
    };
    void open(QStringList *problems);
    static bool serves(const Loaded &loaded, const QString &modelName);
    platform::PrintDialogExtension *principalObject(Loaded *loaded, QString *error);

    QStringList m_folders;
    bool m_opened = false;
    std::vector<Loaded> m_loaded;
};

} // namespace host
