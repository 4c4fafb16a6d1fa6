// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include <QObject>

// A Qt plug-in of another kind.
class Expected : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.kelmar.PrintDialogExtension/1.0")
};

#include "stub_other_plugin.moc"
