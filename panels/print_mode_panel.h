// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"

class QVPopUpButton_M880;

// The panel "Print Mode": the print mode (private printing requires a five-digit password), the department
// code, thin lines and blank pages. Each code is one value here and five one-digit options in the PPD.
class QVPDEPrintMode_M880 : public QVPDE_M880, public QVPDELoading_M880
{
    Q_OBJECT
    // Both codes always have exactly five digits.
    Q_PROPERTY(QString departmentCode READ departmentCode WRITE setDepartmentCode)
    Q_PROPERTY(QString privatePassword READ privatePassword WRITE setPrivatePassword)
    // Describes the purpose of the code, or why none can be entered.
    Q_PROPERTY(QString departmentCodeHint READ departmentCodeHint STORED false)
    Q_PROPERTY(bool isPrivate READ isPrivate)
    Q_PROPERTY(bool hasPrintMode READ hasPrintMode WRITE setHasPrintMode STORED false)
public:
    QVPDEPrintMode_M880();

    QString nibNameForModel(const QString &model) const override;
    platform::CompiledForm compiledForm(const QString &nibName) const override;
    bool initWithManager(std::shared_ptr<QVPDEManager_M880> manager) override;
    QStringList supportedPPDOptionKeys() override;
    std::vector<platform::Outlet> outlets() override;

    QString departmentCode();
    void setDepartmentCode(const QString &code);
    QString departmentCodeHint();
    // "00000" on a model without password options, where setting it has no effect.
    QString privatePassword();
    void setPrivatePassword(const QString &code);
    bool isPrivate();
    // Whether the model has the password options.
    bool hasPrintMode() const { return m_hasPrintMode; }
    void setHasPrintMode(bool has);

    // The codes appear unencrypted after the choices they belong to; their digits have no lines of their own.
    QString summaryForKey(const QString &key) override;

private:
    QVPopUpButton_M880 *m_printModePopUp = nullptr;
    QVPopUpButton_M880 *m_departmentCodePopUp = nullptr;
    QVPopUpButton_M880 *m_distinguishThinLinesPopUp = nullptr;
    QVPopUpButton_M880 *m_doNotPrintBlankPagesPopUp = nullptr;
    bool m_hasPrintMode = false;
};
