// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"

namespace platform {
struct Notification;
}

// The panel "Color Settings 2": the balance of the four toners and the picture's sharpness, brightness,
// contrast, saturation and background. Balance is only allowed while the colour mode, which another panel
// sets, permits it.
class QVPDEColorSettings2_M880 : public QVPDE_M880, public QVPDELoading_M880
{
    Q_OBJECT
    Q_PROPERTY(bool colorBalanceAllowed READ colorBalanceAllowed WRITE setColorBalanceAllowed STORED false)
    // Why colour balance is not allowed, in the user's language; empty while it is.
    Q_PROPERTY(QString colorBalanceReason READ colorBalanceReason)
public:
    QVPDEColorSettings2_M880();

    QString nibNameForModel(const QString &model) const override;
    bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager) override;
    // Depends on the model's name alone.
    QStringList supportedPPDOptionKeys() override;
    std::vector<platform::Action> actions() override;

    bool colorBalanceAllowed() const { return m_colorBalanceAllowed; }
    // False takes the four balance values back to neutral and saves the panel at once. True changes no value.
    void setColorBalanceAllowed(bool allowed);
    QString colorBalanceReason() const;
    // The colour mode has changed.
    void colorTypeChanged(const platform::Notification &notification);

    // Takes one option back to neutral: the one that the sender names in its property "optionKey".
    void resetToNeutral(QWidget *sender);
    void resetAllToNeutral(QWidget *sender);

private:
    void resetOptionToNeutral(const QString &key);

    bool m_colorBalanceAllowed = false;
    QString m_colorType; // the last one announced; null before
};
