// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_protocols.h"
#include "panelkit/slider_notifications.h"
#include "platform/key_value_object.h"
#include "platform/layout_loader.h"
#include "platform/panel_extras.h"

#include <QMap>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QVPDEManager_M880;

extern const QString QVOptionChangedNotification; // "QVOptionChanged"

// Base class of all panels: pending choices of PPD options as keyed values, the layout, save, restore,
// summary. For an option keyword K it has the keys K (the choice keyword), K + "Choices" (list of choice
// dictionaries) and K + "Choice" (index of the choice). Setting K or K + "Choices" posts a notification under
// that key on the manager's notification center. The PPD and the host are not changed before a save. Owned by
// the host through PrintDialogPanel; holds the manager.
class QVPDE_M880 : public platform::KeyValueObject,
                   public QVCocoaPDE_M880,
                   public platform::PanelHelp,
                   public platform::LayoutOwner
{
    Q_OBJECT
    Q_PROPERTY(QStringList supportedPPDOptionKeys READ supportedPPDOptionKeys)
public:
    // Creates the panel of class T for one dialog; null if its initWithManager() returns false.
    template <typename T>
    static std::unique_ptr<T> pdeWithManager(std::shared_ptr<QVPDEManager_M880> manager)
    {
        auto panel = std::make_unique<T>();
        return panel->initWithManager(std::move(manager)) ? std::move(panel) : nullptr;
    }
    QVPDE_M880();
    ~QVPDE_M880() override;

    // Registers the names used by layouts: the value transformers, the code assistant and the pop-up button.
    // Runs on the first use of a panel class; repeated calls have no effect.
    static void initialize();
    // Loads choice lists and, for a class that implements QVPDELoading_M880, the layout. False without a
    // manager. Raises Exception if the layout is missing or does not match. Overrides must call this first.
    virtual bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager);

    const std::shared_ptr<QVPDEManager_M880> &manager() const { return m_manager; }
    void setManager(std::shared_ptr<QVPDEManager_M880> manager);
    QString panelName() override;
    void setPanelName(const QString &name);
    QString helpText() override; // the help page named after the last part of the panel's kind
    // One or two sentences on an option or key: the bundle's text for its name and "?"; null without one.
    QString explanationForKey(const QString &key) const;
    QString panelKind() override { return m_panelKind; }
    void setPanelKind(const QString &kind);
    void setPanelIdentifier(const QString &identifier); // sets the kind "com.kelmar.pde." + identifier
    QWidget *panelView() override { return m_view; }
    QStringList supportedPPDOptionKeys() override { return m_supportedPPDOptionKeys.value_or(QStringList()); }
    void setSupportedPPDOptionKeys(const QStringList &keys);
    const std::optional<QStringList> &supportedExtensionOptionKeys() const;
    void setSupportedExtensionOptionKeys(const QStringList &keys);

    QVariant valueForKey(const QString &key) override;
    // An index outside the choice list raises Exception (range); a null value of an option raises Exception
    // (invalid argument).
    void setValueForKey(const QVariant &value, const QString &key) override;
    // The PPD's default choice keyword of an option; null when it has none.
    QVariant defaultValueForKey(const QString &key);
    void setDefaultValueForKey(const QString &key);
    // Joins the digits of a code in PREFIX1 to PREFIX5, and splits them. A code has five characters; a
    // shorter one raises Exception (range).
    QString composeCodeForOption(const QString &prefix);
    void decomposeCodeForOption(const QString &code, const QString &prefix);

    // Both always return true; an Exception inside them is logged.
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    QMap<QString, QString> summaryInfo() override;
    // Text of the marked choice of an option; a null string if nothing is marked or the option should not be
    // shown.
    virtual QString summaryForKey(const QString &key);
    bool shouldHide() override { return true; }
    void willShow() override {}

    platform::KeyValueObject *keyValueObject() override { return this; }
    std::vector<platform::Outlet> outlets() override;
    void observeValueForKeyPathOfObjectChangeContext(const QString &keyPath, platform::KeyValueObject *object,
                                                     const QVariantMap &change, QObject *context) override;
    // Action of sliders on the older-host path.
    void sliderDidMove(QObject *sender);

protected:
    std::optional<QStringList> m_supportedPPDOptionKeys; // null until first built

private:
    bool supportsOption(const QString &option);
    QVariant choiceIndex(const QString &option);
    void setChoiceIndex(const QVariant &index, const QString &option);
    void setOptionValue(const QVariant &value, const QString &key);
    void loadChoiceLists();
    void loadInterface(const QVPDELoading_M880 &loading);
    void explainControls();

    QWidget *m_view = nullptr; // outlet; belongs to the layout
    QString m_panelName;
    QString m_panelKind;
    std::shared_ptr<QVPDEManager_M880> m_manager;
    platform::TopLevelObjects m_topLevelNibObjects;
    std::optional<QStringList> m_supportedExtensionOptionKeys;
    QVariantMap m_ppdOptionValues;
    QVariantMap m_extensionOptionValues;
    std::unique_ptr<SliderRegistry> m_updaterInfo;
    bool m_ignoreSliderNotifications = false;
};
