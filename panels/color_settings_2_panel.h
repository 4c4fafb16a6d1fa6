// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"

namespace platform {
struct Notification;
}

// The panel "Color Settings 2": the balance of the four toners, and sharpness, brightness, contrast,
// saturation and background of the image. Balance is allowed only if the colour mode, which another panel
// sets, permits it.
class QVPDEColorSettings2_M880 : public QVPDE_M880, public QVPDELoading_M880
{
    Q_OBJECT
    Q_PROPERTY(bool colorBalanceAllowed READ colorBalanceAllowed WRITE setColorBalanceAllowed STORED false)
    // Why colour balance is not allowed, in the user's language; empty if it is allowed.
    Q_PROPERTY(QString colorBalanceReason READ colorBalanceReason)
public:
    QVPDEColorSettings2_M880();

    QString nibNameForModel(const QString &model) const override;
    platform::CompiledForm compiledForm(const QString &nibName) const override;
    bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager) override;
    // Depends only on the model name.
    QStringList supportedPPDOptionKeys() override;
    std::vector<platform::Action> actions() override;

    bool colorBalanceAllowed() const { return m_colorBalanceAllowed; }
    // False resets the four balance values to neutral and saves the panel at once. True changes no value.
    void setColorBalanceAllowed(bool allowed);
    QString colorBalanceReason() const;
    // Called when the colour mode has changed.
    void colorTypeChanged(const platform::Notification &notification);

    // Resets one option to neutral: the one named in the sender's property "optionKey".
    void resetToNeutral(QWidget *sender);
    void resetAllToNeutral(QWidget *sender);

private:
    void resetOptionToNeutral(const QString &key);

    bool m_colorBalanceAllowed = false;
    QString m_colorType; // the last one announced; null before the first
};
