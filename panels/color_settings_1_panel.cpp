// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/color_settings_1_panel.h"

#include "device/advanced_color_settings.h"
#include "layouts/ColorSettings1.h"
#include "layouts/digests.h"
#include "panelkit/obstacle_text.h"
#include "panelkit/ppd_popup_button.h"
#include "panels/view_switch.h"
#include "panels/view_utilities.h"
#include "panels/widgets/view_stack.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "plugin/manager.h"
#include "plugin/panel_roster.h"
#include "ppd/ppd_model.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

const PanelRegistration<QVPDEColorSettings1_M880> registration("ColorSettings1");

const QString imageTypeKey = QStringLiteral("ImageType");
const QString resolutionKey = QStringLiteral("Resolution");
const QString advancedChoice = QStringLiteral("Advanced");

// In the numbering of ICC profiles.
constexpr int renderingIntentCount = 4;

void registerDependentKeys()
{
    for (const QString &key : {QStringLiteral("advancedSelected"), QStringLiteral("advancedHint")})
        platform::KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(
            &QVPDEColorSettings1_M880::staticMetaObject, {imageTypeKey}, key);
}

QWidget *firstControlIn(QWidget *view)
{
    for (QWidget *next = view->nextInFocusChain(); next != view; next = next->nextInFocusChain()) {
        if (view->isAncestorOf(next) && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus))
            return next;
    }
    return nullptr;
}

} // namespace

QVPDEColorSettings1_M880::QVPDEColorSettings1_M880()
{
    registerDependentKeys();
}

QVPDEColorSettings1_M880::~QVPDEColorSettings1_M880()
{
    m_advancedColorSettingsManager.reset();
    if (manager())
        manager()->notificationCenter()->removeObserver(this);
}

QString QVPDEColorSettings1_M880::nibNameForModel(const QString &) const
{
    return QStringLiteral("ColorSettings1");
}

platform::CompiledForm QVPDEColorSettings1_M880::compiledForm(const QString &) const
{
    return {platform::makeForm<QVViewStack_M880, Ui_ColorSettings1>, digestOfColorSettings1};
}

bool QVPDEColorSettings1_M880::initWithManager(std::shared_ptr<QVPDEManager_M880> manager)
{
    if (!QVPDE_M880::initWithManager(std::move(manager)))
        return false;
    setPanelName(QStringLiteral("Color Settings 1"));
    setPanelIdentifier(QStringLiteral("color-settings-1"));
    const auto &ppd = this->manager()->ppd();
    const auto imageTypes = ppd ? ppd->choicesForOption(imageTypeKey) : std::nullopt;
    if (imageTypes && imageTypes->contains(advancedChoice))
        makeAdvancedColorSettings();

    m_colorType->setDataSourceAndOptionName(this, QStringLiteral("ColorType"));
    m_halftone->setDataSourceAndOptionName(this, QStringLiteral("Halftone"));
    m_blackOverPrint->setDataSourceAndOptionName(this, QStringLiteral("BlackOverPrint"));
    m_imageType->setDataSourceAndOptionName(this, imageTypeKey);
    m_pureBlackAndGray->setDataSourceAndOptionName(this, QStringLiteral("PureBlackGray"));
    if (ppd && ppd->hasOption(resolutionKey)) {
        setHasResolution(true);
        m_resolution->setDataSourceAndOptionName(this, resolutionKey);
    }

    m_advancedView->setParent(panelView());
    m_basicView->setParent(panelView());
    setCurrentView(m_basicView);
    QVViewUtilities_M880::centerInSuperview(m_basicView);
    QVViewUtilities_M880::centerInSuperview(m_advancedView);
    this->manager()->notificationCenter()->addObserver(
        this, imageTypeKey,
        [this](const platform::Notification &notification) { showAdvancedView(notification); });
    return true;
}

void QVPDEColorSettings1_M880::makeAdvancedColorSettings()
{
    setAdvancedColorSettingsManager(std::make_unique<QVAdvancedColorSettingsManager_M880>(
        manager()->host(), manager()->bundle().get(), m_advancedView));
    setHasAdvanced(true);
}

QStringList QVPDEColorSettings1_M880::supportedPPDOptionKeys()
{
    if (m_supportedPPDOptionKeys)
        return *m_supportedPPDOptionKeys;
    QStringList keys{QStringLiteral("ColorType"),      QStringLiteral("Halftone"),
                     QStringLiteral("TonerSave"),      imageTypeKey,
                     QStringLiteral("BlackOverPrint"), QStringLiteral("PureBlackGray")};
    if (manager()->ppd() && manager()->ppd()->hasOption(resolutionKey))
        keys += resolutionKey;
    setSupportedPPDOptionKeys(keys);
    return keys;
}

std::vector<platform::Outlet> QVPDEColorSettings1_M880::outlets()
{
    auto all = QVPDE_M880::outlets();
    all.push_back(platform::outlet(QStringLiteral("colorType"), &m_colorType));
    all.push_back(platform::outlet(QStringLiteral("resolution"), &m_resolution));
    all.push_back(platform::outlet(QStringLiteral("halftone"), &m_halftone));
    all.push_back(platform::outlet(QStringLiteral("imageType"), &m_imageType));
    all.push_back(platform::outlet(QStringLiteral("blackOverPrint"), &m_blackOverPrint));
    all.push_back(platform::outlet(QStringLiteral("pureBlackAndGray"), &m_pureBlackAndGray));
    all.push_back(platform::outlet(QStringLiteral("basicView"), &m_basicView));
    all.push_back(platform::outlet(QStringLiteral("advancedView"), &m_advancedView));
    return all;
}

std::vector<platform::Action> QVPDEColorSettings1_M880::actions()
{
    return {{QStringLiteral("goToAdvanced"), [this](QWidget *sender) { goToAdvanced(sender); }},
            {QStringLiteral("goBack"), [this](QWidget *sender) { goBack(sender); }},
            {QStringLiteral("reloadDefaultSNMPValues"),
             [this](QWidget *sender) { reloadDefaultSNMPValues(sender); }}};
}

void QVPDEColorSettings1_M880::setHasResolution(bool has)
{
    const platform::KeyChange change(this, QStringLiteral("hasResolution"));
    m_hasResolution = has;
}

void QVPDEColorSettings1_M880::setHasAdvanced(bool has)
{
    const platform::KeyChange change(this, QStringLiteral("hasAdvanced"));
    m_hasAdvanced = has;
}

bool QVPDEColorSettings1_M880::advancedSelected()
{
    return valueForKey(imageTypeKey).toString() == advancedChoice;
}

void QVPDEColorSettings1_M880::setAdvancedSelected(bool selected)
{
    const platform::KeyChange change(this, QStringLiteral("advancedSelected"));
    m_advancedSelected = selected;
}

QString QVPDEColorSettings1_M880::advancedHint()
{
    if (advancedSelected())
        return manager()->bundle()->translate("ColorSettings1", "The printer’s color profiles");
    const QString choice = valueForKey(imageTypeKey).toString();
    return QVObstacleText(*manager(), imageTypeKey, QVTextOfChoice(*manager(), imageTypeKey, choice));
}

QVAdvancedColorSettingsManager_M880 *QVPDEColorSettings1_M880::advancedColorSettingsManager() const
{
    return m_advancedColorSettingsManager.get();
}

platform::KeyValueObject *QVPDEColorSettings1_M880::advancedColorSettingsObject() const
{
    return m_advancedColorSettingsManager.get();
}

void QVPDEColorSettings1_M880::setAdvancedColorSettingsManager(
    std::unique_ptr<QVAdvancedColorSettingsManager_M880> settings)
{
    // Declared before the change, so that the previous object is destroyed after all observers have read the
    // new one.
    std::unique_ptr<QVAdvancedColorSettingsManager_M880> earlier;
    const platform::KeyChange change(this, QStringLiteral("advancedColorSettingsManager"));
    earlier = std::exchange(m_advancedColorSettingsManager, std::move(settings));
}

QStringList QVPDEColorSettings1_M880::renderingIntentNames() const
{
    QStringList names;
    for (int intent = 0; intent < renderingIntentCount; ++intent)
        names += manager()->localizedStringForKey(QStringLiteral("RenderingIntent:%1").arg(intent));
    return names;
}

QVariantList QVPDEColorSettings1_M880::renderingIntentNumbers() const
{
    QVariantList numbers;
    for (int intent = 0; intent < renderingIntentCount; ++intent)
        numbers += intent;
    return numbers;
}

void QVPDEColorSettings1_M880::setCurrentView(QWidget *view)
{
    ViewSwitch::cancelIn(panelView());
    if (auto *stack = qobject_cast<QVViewStack_M880 *>(panelView()))
        stack->fillWithViews();
    const auto subviews = panelView()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *subview : subviews) {
        if (subview != view)
            subview->hide();
    }
    QVViewUtilities_M880::centerInSuperview(view);
    {
        const platform::KeyChange change(this, QStringLiteral("currentView"));
        m_currentView = view;
    }
    view->show();
}

void QVPDEColorSettings1_M880::animateViewIn(QWidget *view)
{
    if (view == m_currentView)
        return;
    const auto direction = view == m_basicView ? SwitchDirection::Back : SwitchDirection::ToAdvanced;
    const QWidget *focus = m_currentView->window()->focusWidget();
    const bool takesFocus = focus && m_currentView->isAncestorOf(focus);
    ViewSwitch::start(m_currentView, view, direction);
    {
        const platform::KeyChange change(this, QStringLiteral("currentView"));
        m_currentView = view;
    }
    // Scroll areas around the panel show the new view from its top.
    for (QWidget *around = panelView()->parentWidget(); around; around = around->parentWidget()) {
        if (auto *scroll = qobject_cast<QScrollArea *>(around))
            scroll->verticalScrollBar()->setValue(0);
    }
    // The focus must not stay in the outgoing view.
    QWidget *control = takesFocus ? firstControlIn(view) : nullptr;
    if (control)
        control->setFocus(Qt::OtherFocusReason);
}

bool QVPDEColorSettings1_M880::offersViewOf(const QWidget *control)
{
    return m_hasAdvanced || !m_advancedView->isAncestorOf(control);
}

void QVPDEColorSettings1_M880::showViewOf(QWidget *control)
{
    for (QWidget *view : {m_basicView, m_advancedView}) {
        if (view->isAncestorOf(control) && view != m_currentView)
            setCurrentView(view);
    }
}

void QVPDEColorSettings1_M880::goToAdvanced(QWidget *)
{
    animateViewIn(m_advancedView);
}

void QVPDEColorSettings1_M880::goBack(QWidget *)
{
    animateViewIn(m_basicView);
}

// Leaving "Advanced" does not switch the view, since the user may be reading the settings there.
void QVPDEColorSettings1_M880::showAdvancedView(const platform::Notification &notification)
{
    if (notification.userInfo.value(platform::NSKeyValueChangeNewKey).toString() == advancedChoice)
        animateViewIn(m_advancedView);
}

void QVPDEColorSettings1_M880::reloadDefaultSNMPValues(QWidget *sender)
{
    if (!m_advancedColorSettingsManager)
        return;
    // A printer that did not respond may do so now; the settings do not query it again by themselves.
    m_advancedColorSettingsManager->setSnmpEnabledWithReason(true, {});
    m_advancedColorSettingsManager->updateFromSNMP(sender);
}

bool QVPDEColorSettings1_M880::restoreValuesAndReturnError(QString *error)
{
    if (m_advancedColorSettingsManager)
        m_advancedColorSettingsManager->restoreValuesAndReturnError(error);
    return QVPDE_M880::restoreValuesAndReturnError(error);
}

bool QVPDEColorSettings1_M880::saveValuesAndReturnError(QString *error)
{
    if (m_advancedColorSettingsManager)
        m_advancedColorSettingsManager->saveValuesAndReturnError(error);
    return QVPDE_M880::saveValuesAndReturnError(error);
}

void QVPDEColorSettings1_M880::willShow()
{
    QVPDE_M880::willShow();
    setCurrentView(m_basicView);
    if (m_advancedColorSettingsManager)
        m_advancedColorSettingsManager->willShow();
}

QString QVPDEColorSettings1_M880::unavailableReason()
{
    const bool failed = m_advancedColorSettingsManager && !m_advancedColorSettingsManager->snmpEnabled();
    return failed ? m_advancedColorSettingsManager->snmpUnavailableReason() : QString();
}
