// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"
#include "platform/panel_extras.h"

#include <QVariantList>
#include <QWidget>

namespace platform {
struct Notification;
}
class QVAdvancedColorSettingsManager_M880;
class QVPopUpButton_M880;

// The panel "Color Settings 1": the basic colour options and, if the printer offers the image type
// "Advanced", a second view with the colour profiles stored in the device. One of the two views is shown at a
// time.
class QVPDEColorSettings1_M880 : public QVPDE_M880, public QVPDELoading_M880, public platform::PanelViews
{
    Q_OBJECT
    // Internal state is not STORED, so users and scripts cannot set it by name.
    Q_PROPERTY(bool hasResolution READ hasResolution WRITE setHasResolution STORED false)
    Q_PROPERTY(bool hasAdvanced READ hasAdvanced WRITE setHasAdvanced STORED false)
    // Whether the image type is "Advanced". A value set here is stored, but never read.
    Q_PROPERTY(bool advancedSelected READ advancedSelected WRITE setAdvancedSelected STORED false)
    // Describes the advanced view, or the reason why it cannot be opened.
    Q_PROPERTY(QString advancedHint READ advancedHint STORED false)
    Q_PROPERTY(QWidget *currentView READ currentView WRITE setCurrentView STORED false)
    // Null without an advanced view.
    Q_PROPERTY(platform::KeyValueObject *advancedColorSettingsManager READ advancedColorSettingsObject)
    // Localised names of the rendering intents, and the device's numbers for them.
    Q_PROPERTY(QStringList renderingIntentNames READ renderingIntentNames)
    Q_PROPERTY(QVariantList renderingIntentNumbers READ renderingIntentNumbers)
public:
    QVPDEColorSettings1_M880();
    ~QVPDEColorSettings1_M880() override;

    QString nibNameForModel(const QString &model) const override;
    platform::CompiledForm compiledForm(const QString &nibName) const override;
    bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager) override;
    QStringList supportedPPDOptionKeys() override;
    std::vector<platform::Outlet> outlets() override;
    std::vector<platform::Action> actions() override;

    bool hasResolution() const { return m_hasResolution; }
    void setHasResolution(bool has);
    bool hasAdvanced() const { return m_hasAdvanced; }
    void setHasAdvanced(bool has);
    bool advancedSelected();
    void setAdvancedSelected(bool selected);
    QString advancedHint();
    QVAdvancedColorSettingsManager_M880 *advancedColorSettingsManager() const;
    void setAdvancedColorSettingsManager(std::unique_ptr<QVAdvancedColorSettingsManager_M880> settings);
    platform::KeyValueObject *advancedColorSettingsObject() const;
    QStringList renderingIntentNames() const;
    QVariantList renderingIntentNumbers() const;

    QWidget *currentView() const { return m_currentView; }
    // Shows only this view, at once.
    void setCurrentView(QWidget *view);
    // Switches to a view within half a second; it is the current view from the start. Does nothing if the
    // view is already current.
    void animateViewIn(QWidget *view);
    bool offersViewOf(const QWidget *control) override;
    // Without an animation, since the caller then looks for the control at its final position.
    void showViewOf(QWidget *control) override;
    void goToAdvanced(QWidget *sender);
    void goBack(QWidget *sender);
    // Called when the image type has changed.
    void showAdvancedView(const platform::Notification &notification);
    // Queries the device again, even if it could not be queried before. Returns when done.
    void reloadDefaultSNMPValues(QWidget *sender);

    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void willShow() override;
    // The device's reason, if it could not be queried.
    QString unavailableReason() override;

private:
    void makeAdvancedColorSettings();

    QVPopUpButton_M880 *m_colorType = nullptr;
    QVPopUpButton_M880 *m_resolution = nullptr;
    QVPopUpButton_M880 *m_halftone = nullptr;
    QVPopUpButton_M880 *m_imageType = nullptr;
    QVPopUpButton_M880 *m_blackOverPrint = nullptr;
    QVPopUpButton_M880 *m_pureBlackAndGray = nullptr;
    QWidget *m_basicView = nullptr;
    QWidget *m_advancedView = nullptr;
    QWidget *m_currentView = nullptr;
    bool m_hasResolution = false;
    bool m_hasAdvanced = false;
    bool m_advancedSelected = false;
    std::unique_ptr<QVAdvancedColorSettingsManager_M880> m_advancedColorSettingsManager;
};
