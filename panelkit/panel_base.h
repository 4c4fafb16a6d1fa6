// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_protocols.h"
#include "platform/key_value_object.h"
#include "platform/layout_loader.h"
#include "platform/panel_extras.h"

#include <QMap>
#include <QPointer>
#include <QSlider>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QVPDEManager_M880;

extern const QString QVOptionChangedNotification; // "QVOptionChanged"

// Observed key path to slider; exists only where the slider path of older hosts is in use.
using SliderRegistry = QMap<QString, QPointer<QSlider>>;

// What every panel shares: pending choices of its PPD options as keyed values, its layout, save, restore,
// summary. For an option keyword K it answers K (the choice keyword), K + "Choices" (list of choice
// dictionaries) and K + "Choice" (index of the choice). Every set of K or K + "Choices" is posted on the
// manager's notification centre under that key. Nothing reaches the PPD or the host before a save. Owned by
// the host through PrintDialogPanel; holds the manager.
class QVPDE_M880 : public platform::KeyValueObject,
                   public QVCocoaPDE_M880,
                   public platform::PanelHelp,
                   public platform::LayoutOwner
{
    Q_OBJECT
    Q_PROPERTY(QStringList supportedPPDOptionKeys READ supportedPPDOptionKeys)
public:
    // The panel of class T for one dialog; null when its initWithManager() declines.
    template <typename T>
    static std::unique_ptr<T> pdeWithManager(std::shared_ptr<QVPDEManager_M880> manager)
    {
        auto panel = std::make_unique<T>();
        return panel->initWithManager(std::move(manager)) ? std::move(panel) : nullptr;
    }
    QVPDE_M880();
    ~QVPDE_M880() override;

    // Registers what layouts name: the value transformers, the code assistant and the pop-up button. Runs on
    // the first use of a panel class; repeating it changes nothing.
    static void initialize();
    // Loads choice lists and, for a class that implements QVPDELoading_M880, the layout. False without a
    // manager; raises Exception when the layout is missing or does not fit. An override calls this one first.
    virtual bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager);

    const std::shared_ptr<QVPDEManager_M880> &manager() const { return m_manager; }
    void setManager(std::shared_ptr<QVPDEManager_M880> manager);
    QString panelName() override;
    void setPanelName(const QString &name);
    // The bundle's page that is called as the last part of the panel's kind.
    QString helpText() override;
    // One or two sentences on what an option or key is for: the bundle's text for its name and "?". Null
    // where it has none.
    QString explanationForKey(const QString &key) const;
    QString panelKind() override { return m_panelKind; }
    void setPanelKind(const QString &kind);
    // Sets the kind "com.kelmar.pde." + identifier.
    void setPanelIdentifier(const QString &identifier);
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
    // The digits of a code held in PREFIX1 to PREFIX5, and back. A code needs five characters; a shorter one
    // raises Exception (range).
    QString composeCodeForOption(const QString &prefix);
    void decomposeCodeForOption(const QString &code, const QString &prefix);

    // Both always true; an Exception inside them is logged.
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    QMap<QString, QString> summaryInfo() override;
    // Text of the marked choice of an option; null string when it has none or should not be shown.
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
    void loadInterface(const QString &nibName);
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
