// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/color_settings_2_panel.h"

#include "layouts/ColorSettings2.h"
#include "layouts/digests.h"
#include "panelkit/obstacle_text.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "plugin/manager.h"
#include "plugin/model_names.h"
#include "plugin/panel_roster.h"
#include "ppd/ppd_model.h"

namespace reduced {
// The same headers and the same class, which is the context of the texts.
#include "layouts/ColorSettings2-2600c.h"
} // namespace reduced

namespace {

const PanelRegistration<QVPDEColorSettings2_M880> registration("ColorSettings2");

const QString reducedLayout = QStringLiteral("ColorSettings2-2600c");
const QString colorTypeKey = QStringLiteral("ColorType");
const QString neutral = QStringLiteral("0");
const QStringList balanceKeys{QStringLiteral("ColorBalanceCyan"), QStringLiteral("ColorBalanceMagenta"),
                              QStringLiteral("ColorBalanceYellow"), QStringLiteral("ColorBalanceBlack")};

void registerDependentKeys()
{
    platform::KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(
        &QVPDEColorSettings2_M880::staticMetaObject, {QStringLiteral("colorBalanceAllowed")},
        QStringLiteral("colorBalanceReason"));
}

} // namespace

QVPDEColorSettings2_M880::QVPDEColorSettings2_M880()
{
    registerDependentKeys();
}

QString QVPDEColorSettings2_M880::nibNameForModel(const QString &model) const
{
    return model == QVHazel ? reducedLayout : QStringLiteral("ColorSettings2");
}

platform::CompiledForm QVPDEColorSettings2_M880::compiledForm(const QString &nibName) const
{
    if (nibName == reducedLayout)
        return {platform::makeForm<QWidget, reduced::Ui_ColorSettings2>, digestOfColorSettings2_2600c};
    return {platform::makeForm<QWidget, Ui_ColorSettings2>, digestOfColorSettings2};
}

bool QVPDEColorSettings2_M880::initWithManager(std::shared_ptr<QVPDEManager_M880> manager)
{
    if (!QVPDE_M880::initWithManager(std::move(manager)))
        return false;
    setPanelName(QStringLiteral("Color Settings 2"));
    setPanelIdentifier(QStringLiteral("color-settings-2"));
    setColorBalanceAllowed(true);
    this->manager()->notificationCenter()->addObserver(
        this, colorTypeKey,
        [this](const platform::Notification &notification) { colorTypeChanged(notification); });
    return true;
}

QStringList QVPDEColorSettings2_M880::supportedPPDOptionKeys()
{
    if (m_supportedPPDOptionKeys)
        return *m_supportedPPDOptionKeys;
    QStringList keys = balanceKeys;
    keys += {QStringLiteral("SharpnessVRN"), QStringLiteral("BrightnessVRN"), QStringLiteral("ContrastVRN"),
             QStringLiteral("SaturationVRN")};
    if (manager()->currentModel() != QVHazel)
        keys += QStringLiteral("BackgroundAdjustmentVRN");
    setSupportedPPDOptionKeys(keys);
    return keys;
}

std::vector<platform::Action> QVPDEColorSettings2_M880::actions()
{
    return {{QStringLiteral("resetToNeutral"), [this](QWidget *sender) { resetToNeutral(sender); }},
            {QStringLiteral("resetAllToNeutral"), [this](QWidget *sender) { resetAllToNeutral(sender); }}};
}

void QVPDEColorSettings2_M880::setColorBalanceAllowed(bool allowed)
{
    {
        const platform::KeyChange change(this, QStringLiteral("colorBalanceAllowed"));
        m_colorBalanceAllowed = allowed;
    }
    if (allowed)
        return;
    for (const QString &key : balanceKeys)
        setValueForKey(neutral, key);
    saveValuesAndReturnError(nullptr);
}

QString QVPDEColorSettings2_M880::colorBalanceReason() const
{
    if (m_colorBalanceAllowed)
        return {};
    const char *reason = QT_TRANSLATE_NOOP("QVPDEColorSettings2_M880",
                                           "Color balance is not available while \"%1\" is \"%2\".");
    const auto &bundle = manager()->bundle();
    const QString name = manager()->ppd()
                             ? manager()->ppd()->localizedOptionNameWithBundle(colorTypeKey, bundle.get())
                             : colorTypeKey;
    return bundle->translate("QVPDEColorSettings2_M880", reason)
        .arg(name, QVTextOfChoice(*manager(), colorTypeKey, m_colorType));
}

// Cyan at one step represents all four balances: the printers forbid all of them or none.
void QVPDEColorSettings2_M880::colorTypeChanged(const platform::Notification &notification)
{
    m_colorType = notification.userInfo.value(platform::NSKeyValueChangeNewKey).toString();
    const auto &ppd = manager()->ppd();
    const bool forbidden = ppd && ppd->optionWithChoiceConflictsWithOptionWithChoice(
                                      colorTypeKey, m_colorType, balanceKeys.first(), QStringLiteral("1"));
    setColorBalanceAllowed(!forbidden);
}

void QVPDEColorSettings2_M880::resetToNeutral(QWidget *sender)
{
    resetOptionToNeutral(sender->property("optionKey").toString());
}

void QVPDEColorSettings2_M880::resetAllToNeutral(QWidget *)
{
    for (const QString &key : supportedPPDOptionKeys())
        resetOptionToNeutral(key);
}

// Does nothing if the option is already neutral, or if this printer has no neutral choice for it.
void QVPDEColorSettings2_M880::resetOptionToNeutral(const QString &key)
{
    const auto choices = manager()->ppd() ? manager()->ppd()->choicesForOption(key) : std::nullopt;
    if (choices && choices->contains(neutral) && valueForKey(key).toString() != neutral)
        setValueForKey(neutral, key);
}
