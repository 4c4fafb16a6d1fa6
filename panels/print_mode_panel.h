// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"

class QVPopUpButton_M880;

// The panel "Print Mode": how the job is printed (private printing takes a five-digit password), the
// department code, thin lines and blank pages. Each code is one value here and five one-digit options in the
// PPD.
class QVPDEPrintMode_M880 : public QVPDE_M880, public QVPDELoading_M880
{
    Q_OBJECT
    // Both codes are exactly five digits, also when set.
    Q_PROPERTY(QString departmentCode READ departmentCode WRITE setDepartmentCode)
    Q_PROPERTY(QString privatePassword READ privatePassword WRITE setPrivatePassword)
    // What the code is for, or why there can be none.
    Q_PROPERTY(QString departmentCodeHint READ departmentCodeHint STORED false)
    Q_PROPERTY(bool isPrivate READ isPrivate)
    Q_PROPERTY(bool hasPrintMode READ hasPrintMode WRITE setHasPrintMode STORED false)
public:
    QVPDEPrintMode_M880();

    QString nibNameForModel(const QString &model) const override;
    bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager) override;
    QStringList supportedPPDOptionKeys() override;
    std::vector<platform::Outlet> outlets() override;

    QString departmentCode();
    void setDepartmentCode(const QString &code);
    QString departmentCodeHint();
    // "00000" on a model without password options, where setting it does nothing.
    QString privatePassword();
    void setPrivatePassword(const QString &code);
    bool isPrivate();
    // Whether the model carries the password options.
    bool hasPrintMode() const { return m_hasPrintMode; }
    void setHasPrintMode(bool has);

    // The codes stand in clear behind the choices they belong to; their digits have no lines of their own.
    QString summaryForKey(const QString &key) override;

private:
    QVPopUpButton_M880 *m_printModePopUp = nullptr;
    QVPopUpButton_M880 *m_departmentCodePopUp = nullptr;
    QVPopUpButton_M880 *m_distinguishThinLinesPopUp = nullptr;
    QVPopUpButton_M880 *m_doNotPrintBlankPagesPopUp = nullptr;
    bool m_hasPrintMode = false;
};
