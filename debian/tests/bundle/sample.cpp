// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/key_value_object.h"
#include "platform/print_dialog.h"

#include <QLabel>

// A panel with one key and no PPD options.
class ReminderPanel : public platform::KeyValueObject, public platform::PrintDialogPanel
{
    Q_OBJECT
    Q_PROPERTY(QString reminder MEMBER m_reminder)
public:
    QString panelName() override { return QStringLiteral("Reminder"); }
    QString panelKind() override { return QStringLiteral("reminder"); }
    QWidget *panelView() override { return &m_view; }
    QMap<QString, QString> summaryInfo() override { return {}; }
    bool shouldHide() override { return false; }
    void willShow() override { m_view.setText(m_reminder); }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    platform::KeyValueObject *keyValueObject() override { return this; }

private:
    QString m_reminder;
    QLabel m_view;
};

class SampleExtension : public QObject, public platform::PrintDialogExtension
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.kelmar.PrintDialogExtension/1.0")
    Q_INTERFACES(platform::PrintDialogExtension)
public:
    bool initWithBundle(std::shared_ptr<platform::Bundle>) override { return true; }
    std::optional<platform::PrintDialogPanels>
    PDEPanelsForTypeWithHostInfo(const QString &, platform::PrintDialogHost *) override
    {
        platform::PrintDialogPanels panels;
        panels.push_back(std::make_unique<ReminderPanel>());
        return panels;
    }
};

#include "sample.moc"
