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

// The panel type of a print dialog, which a host requests and a bundle declares.
KELMAR_PLATFORM_EXPORT extern const QString printDialogPanelType; // "BDB091F4-E57F-11D3-B5CC-0050E4603277"

// The interface of the dialog host for plug-ins. Implemented and owned by the host; outlives every panel.
class KELMAR_PLATFORM_EXPORT PrintDialogHost
{
public:
    virtual ~PrintDialogHost();
    // The job's settings; never null.
    virtual PMPrintSettings printSettings() = 0;
    virtual PMPrintSession printSession() = 0;
    // The printer's open PPD, owned by the host; null if the printer has none.
    virtual ppd_file_s *ppdFile() = 0;
};

// An optional interface of a host that takes part in PPD constraint resolution.
class KELMAR_PLATFORM_EXPORT ConstraintResolvingHost
{
public:
    virtual ~ConstraintResolvingHost();
    // Called before a PPD option or print setting is set to this choice, or removed if the choice is null.
    virtual void willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice) = 0;
};

// An optional interface of a host that can show that it is waiting. Calls must be paired and may nest.
class KELMAR_PLATFORM_EXPORT BlockingWorkHost
{
public:
    virtual ~BlockingWorkHost();
    // `what` is localised plain text, such as "Asking the printer for its colour profiles". The host has
    // painted it when this function returns.
    virtual void willBlock(const QString &what) = 0;
    virtual void didBlock() = 0;
};

// An optional interface of a host that can report a panel that could not be created.
class KELMAR_PLATFORM_EXPORT PanelProblemHost
{
public:
    virtual ~PanelProblemHost();
    // The panel of this class is missing from the dialog. `reason` is plain text that names cause and place.
    virtual void panelFailed(const QString &className, const QString &reason) = 0;
};

// Announces, for the duration of a scope, that the dialog's thread may block. Does nothing if the host is
// null or does not implement BlockingWorkHost.
class KELMAR_PLATFORM_EXPORT BlockingWork
{
public:
    BlockingWork(PrintDialogHost *host, const QString &what);
    ~BlockingWork();
    Q_DISABLE_COPY(BlockingWork)

private:
    BlockingWorkHost *m_host;
};

// One panel of a dialog. Created by a plug-in and owned by the host, which outlives it.
class KELMAR_PLATFORM_EXPORT PrintDialogPanel
{
public:
    virtual ~PrintDialogPanel();
    virtual QString panelName() = 0; // localised
    virtual QString panelKind() = 0; // stable identifier
    // Null for a panel without a user interface. Owned by the panel.
    virtual QWidget *panelView() = 0;
    // Maps localised option names to localised values, as last saved.
    virtual QMap<QString, QString> summaryInfo() = 0;
    virtual bool shouldHide() = 0;
    virtual void willShow() = 0;
    // False if the panel failed, with a message in `error`, which may be null.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    // The localised reason why a part of the panel cannot be used; null if everything can be used. Known
    // after a restore. Settings that cannot be used are not added to the job.
    virtual QString unavailableReason() { return {}; }
    // The object that holds the panel's keys; never null, owned by the panel.
    virtual KeyValueObject *keyValueObject() = 0;
};

using PrintDialogPanels = std::vector<std::unique_ptr<PrintDialogPanel>>;

// The root component of a bundle's code: a QObject that implements this interface.
class KELMAR_PLATFORM_EXPORT PrintDialogExtension
{
public:
    virtual ~PrintDialogExtension();
    virtual bool initWithBundle(std::shared_ptr<Bundle> bundle) = 0;
    // The panels of one dialog, in order; null if the extension does not support this panel type.
    virtual std::optional<PrintDialogPanels> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                          PrintDialogHost *host) = 0;
};

} // namespace platform

Q_DECLARE_INTERFACE(platform::PrintDialogExtension, "org.kelmar.PrintDialogExtension/1.0")
