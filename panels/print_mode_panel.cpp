// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/print_mode_panel.h"

#include "layouts/PrintMode.h"
#include "layouts/digests.h"
#include "panelkit/obstacle_text.h"
#include "panelkit/ppd_popup_button.h"
#include "platform/bundle.h"
#include "plugin/manager.h"
#include "plugin/model_names.h"
#include "plugin/panel_roster.h"
#include "ppd/ppd_model.h"

namespace {

const PanelRegistration<QVPDEPrintMode_M880> registration("PrintMode");

const QString printModeKey = QStringLiteral("PrintMode");
const QString departmentKey = QStringLiteral("DeptCode");
const QString departmentDigit = QStringLiteral("DCDigit");
const QString passwordDigit = QStringLiteral("DINDigit");
const QString zeroCode = QStringLiteral("00000");

QStringList digitKeys(const QString &prefix)
{
    QStringList keys;
    for (int position = 1; position <= 5; ++position)
        keys += prefix + QString::number(position);
    return keys;
}

void registerDependentKeys()
{
    static const bool once = [] {
        const QMetaObject *cls = &QVPDEPrintMode_M880::staticMetaObject;
        const auto triggers = [cls](const QStringList &keys, const QString &dependentKey) {
            platform::KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(cls, keys,
                                                                                       dependentKey);
        };
        triggers({printModeKey}, QStringLiteral("isPrivate"));
        triggers({departmentKey}, QStringLiteral("departmentCodeHint"));
        triggers(digitKeys(departmentDigit), QStringLiteral("departmentCode"));
        triggers(digitKeys(passwordDigit), QStringLiteral("privatePassword"));
        return true;
    }();
    Q_UNUSED(once)
}

} // namespace

QVPDEPrintMode_M880::QVPDEPrintMode_M880()
{
    registerDependentKeys();
}

QString QVPDEPrintMode_M880::nibNameForModel(const QString &) const
{
    return QStringLiteral("PrintMode");
}

platform::CompiledForm QVPDEPrintMode_M880::compiledForm(const QString &) const
{
    return {platform::makeForm<QWidget, Ui_PrintMode>, digestOfPrintMode};
}

bool QVPDEPrintMode_M880::initWithManager(std::shared_ptr<QVPDEManager_M880> manager)
{
    if (!QVPDE_M880::initWithManager(std::move(manager)))
        return false;
    m_printModePopUp->setDataSourceAndOptionName(this, printModeKey);
    m_departmentCodePopUp->setDataSourceAndOptionName(this, departmentKey);
    m_distinguishThinLinesPopUp->setDataSourceAndOptionName(this, QStringLiteral("DistinguishThinLines"));
    m_doNotPrintBlankPagesPopUp->setDataSourceAndOptionName(this, QStringLiteral("BlankPage"));
    setPanelName(QStringLiteral("Print Mode"));
    setPanelIdentifier(QStringLiteral("print-mode"));
    setDepartmentCode(zeroCode);
    setPrivatePassword(zeroCode);
    return true;
}

QStringList QVPDEPrintMode_M880::supportedPPDOptionKeys()
{
    if (m_supportedPPDOptionKeys)
        return *m_supportedPPDOptionKeys;
    QStringList keys{printModeKey, QStringLiteral("DistinguishThinLines"), QStringLiteral("BlankPage"),
                     departmentKey};
    keys += digitKeys(departmentDigit);
    const bool hasPassword = manager()->currentModel() != QVAlder;
    if (hasPassword)
        keys += digitKeys(passwordDigit);
    setSupportedPPDOptionKeys(keys);
    setHasPrintMode(hasPassword);
    return keys;
}

std::vector<platform::Outlet> QVPDEPrintMode_M880::outlets()
{
    auto all = QVPDE_M880::outlets();
    all.push_back(platform::outlet(QStringLiteral("printModePopUp"), &m_printModePopUp));
    all.push_back(platform::outlet(QStringLiteral("departmentCodePopUp"), &m_departmentCodePopUp));
    all.push_back(
        platform::outlet(QStringLiteral("distinguishThinLinesPopUp"), &m_distinguishThinLinesPopUp));
    all.push_back(
        platform::outlet(QStringLiteral("doNotPrintBlankPagesPopUp"), &m_doNotPrintBlankPagesPopUp));
    return all;
}

QString QVPDEPrintMode_M880::departmentCode()
{
    return composeCodeForOption(departmentDigit);
}

void QVPDEPrintMode_M880::setDepartmentCode(const QString &code)
{
    decomposeCodeForOption(code, departmentDigit);
}

QString QVPDEPrintMode_M880::departmentCodeHint()
{
    const QString choice = valueForKey(departmentKey).toString();
    if (choice == u"True" || choice.isEmpty())
        return manager()->bundle()->translate("PrintMode",
                                              "Five digits of the department that the job is charged to");
    return QVObstacleText(*manager(), departmentKey, QVTextOfChoice(*manager(), departmentKey, choice));
}

QString QVPDEPrintMode_M880::privatePassword()
{
    if (!supportedPPDOptionKeys().contains(passwordDigit + u'1'))
        return zeroCode;
    return composeCodeForOption(passwordDigit);
}

void QVPDEPrintMode_M880::setPrivatePassword(const QString &code)
{
    if (supportedPPDOptionKeys().contains(passwordDigit + u'1'))
        decomposeCodeForOption(code, passwordDigit);
}

bool QVPDEPrintMode_M880::isPrivate()
{
    return valueForKey(printModeKey).toString() == u"Private";
}

void QVPDEPrintMode_M880::setHasPrintMode(bool has)
{
    const platform::KeyChange change(this, QStringLiteral("hasPrintMode"));
    m_hasPrintMode = has;
}

QString QVPDEPrintMode_M880::summaryForKey(const QString &key)
{
    if (key.startsWith(departmentDigit) || key.startsWith(passwordDigit))
        return {};
    const auto marked = manager()->ppd() ? manager()->ppd()->markedChoiceForOption(key) : std::nullopt;
    if (marked && key == departmentKey) {
        if (valueForKey(departmentKey).toString() != u"True")
            return marked->text;
        return QStringLiteral("%1 (%2)").arg(marked->text, composeCodeForOption(departmentDigit));
    }
    // A model without password options has no password to show, even if its PPD offers private printing.
    if (marked && key == printModeKey && isPrivate() &&
        supportedPPDOptionKeys().contains(passwordDigit + u'1'))
        return QStringLiteral("%1 (%2)").arg(marked->text, composeCodeForOption(passwordDigit));
    return QVPDE_M880::summaryForKey(key);
}
