// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"
#include "platform/printing_manager.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace platform {

class Bundle;
class KeyValueObject;

// The type of the panels that a print dialog shows: what a host asks for and a bundle declares.
KELMAR_PLATFORM_EXPORT extern const QString printDialogPanelType; // "BDB091F4-E57F-11D3-B5CC-0050E4603277"

// What a plug-in may ask of the dialog host. Implemented and owned by the host; outlives every panel.
class KELMAR_PLATFORM_EXPORT PrintDialogHost
{
public:
    virtual ~PrintDialogHost();
    // The job's settings; never null.
    virtual PMPrintSettings printSettings() = 0;
    virtual PMPrintSession printSession() = 0;
    // The printer's open PPD, owned by the host; null where the printer has none.
    virtual ppd_file_s *ppdFile() = 0;
};

// Implemented as well by a host that takes part in PPD constraint resolution.
class KELMAR_PLATFORM_EXPORT ConstraintResolvingHost
{
public:
    virtual ~ConstraintResolvingHost();
    // A PPD option or print setting is about to get this choice; null when it is about to be removed.
    virtual void willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice) = 0;
};

// Implemented as well by a host that can show that it is waiting. Calls pair up and may nest.
class KELMAR_PLATFORM_EXPORT BlockingWorkHost
{
public:
    virtual ~BlockingWorkHost();
    // `what` is localised plain text such as "Asking the printer for its colour profiles"; the host has
    // painted it when this returns.
    virtual void willBlock(const QString &what) = 0;
    virtual void didBlock() = 0;
};

// Implemented as well by a host that can tell the user about a panel that could not be made.
class KELMAR_PLATFORM_EXPORT PanelProblemHost
{
public:
    virtual ~PanelProblemHost();
    // The panel of this class is missing from the dialog; `reason` is plain text that names what and where.
    virtual void panelFailed(const QString &className, const QString &reason) = 0;
};

// Says for the length of a scope that the dialog's thread may block. Nothing happens when the host does not
// implement BlockingWorkHost or is null.
class KELMAR_PLATFORM_EXPORT BlockingWork
{
public:
    BlockingWork(PrintDialogHost *host, const QString &what);
    ~BlockingWork();
    BlockingWork(const BlockingWork &) = delete;
    BlockingWork &operator=(const BlockingWork &) = delete;

private:
    BlockingWorkHost *m_host;
};

// One panel of a dialog. Made by a plug-in, owned by the host, gone before the host object goes.
class KELMAR_PLATFORM_EXPORT PrintDialogPanel
{
public:
    virtual ~PrintDialogPanel();
    virtual QString panelName() = 0; // localised
    virtual QString panelKind() = 0; // stable identifier
    // Null for a panel without an interface. Owned by the panel.
    virtual QWidget *panelView() = 0;
    // Localised option name to localised text, of what was last saved.
    virtual QMap<QString, QString> summaryInfo() = 0;
    virtual bool shouldHide() = 0;
    virtual void willShow() = 0;
    // False with a message in `error` (which may be null) when the panel could not do it.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    // Why some of what the panel offers cannot be used, in localised words; null when all of it can. Known
    // after a restore. What cannot be used does not reach the job.
    virtual QString unavailableReason() { return {}; }
    // The object that answers the panel's keys; never null, owned by the panel.
    virtual KeyValueObject *keyValueObject() = 0;
};

using PrintDialogPanels = std::vector<std::unique_ptr<PrintDialogPanel>>;

// The root component of a bundle's code: a QObject that implements this interface.
class KELMAR_PLATFORM_EXPORT PrintDialogExtension
{
public:
    virtual ~PrintDialogExtension();
    virtual bool initWithBundle(std::shared_ptr<Bundle> bundle) = 0;
    // The panels of one dialog, in order; null when the extension does not serve panels of that type.
    virtual std::optional<PrintDialogPanels> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                          PrintDialogHost *host) = 0;
};

} // namespace platform

Q_DECLARE_INTERFACE(platform::PrintDialogExtension, "org.kelmar.PrintDialogExtension/1.0")
