// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/panel_base.h"

#include "panelkit/digit_codes.h"
#include "panelkit/ppd_popup_button.h"
#include "panelkit/slider_notifications.h"
#include "panelkit/value_transformers.h"
#include "platform/bundle.h"
#include "platform/exception.h"
#include "platform/logging.h"
#include "platform/notification_center.h"
#include "platform/text_field.h"
#include "platform/value_transformer.h"
#include "plugin/manager.h"
#include "ppd/ppd_model.h"

#include <algorithm>
#include <mutex>
#include <utility>

const QString QVOptionChangedNotification = QStringLiteral("QVOptionChanged");

namespace {

constexpr QLatin1StringView choiceSuffix("Choice");
constexpr QLatin1StringView choicesSuffix("Choices");

QString withoutSuffix(const QString &key, QLatin1StringView suffix)
{
    return key.endsWith(suffix) ? key.chopped(suffix.size()) : key;
}

void logException(const platform::Exception &exception)
{
    qCWarning(lcPanels).noquote() << exception.description();
    qCWarning(lcPanels).noquote() << exception.userInfoDescription();
}

} // namespace

QVPDELoading_M880::~QVPDELoading_M880() = default;

platform::CompiledForm QVPDELoading_M880::compiledForm(const QString &) const
{
    return {};
}

void QVPDE_M880::initialize()
{
    static std::once_flag registered;
    std::call_once(registered, [] {
        platform::ValueTransformer::setValueTransformerForName(std::make_shared<QVBooleanTransformer_M880>(),
                                                               QStringLiteral("QVBooleanTransformer_M880"));
        platform::ValueTransformer::setValueTransformerForName(std::make_shared<QVNumberTransformer_M880>(),
                                                               QStringLiteral("QVNumberTransformer_M880"));
        platform::TextFieldDelegate::setDelegateForName(std::make_shared<QVCodeAssistant_M880>(),
                                                        QStringLiteral("QVCodeAssistant_M880"));
        platform::registerLayoutWidget<QVPopUpButton_M880>(QStringLiteral("QVPopUpButton_M880"));
    });
}

QVPDE_M880::QVPDE_M880()
{
    initialize();
}

QVPDE_M880::~QVPDE_M880()
{
    // The given key path is the slider's own name, not the key it shows, so this usually finds no
    // registration. Registrations end with the panel in any case.
    if (m_updaterInfo) {
        for (const auto &slider : std::as_const(*m_updaterInfo))
            removeObserverForKeyPath(this, slider ? slider->objectName() : QString());
    }
    m_updaterInfo.reset();
    m_manager.reset();
    m_topLevelNibObjects.clear();
    m_supportedPPDOptionKeys.reset();
    m_supportedExtensionOptionKeys.reset();
    m_ppdOptionValues.clear();
    m_extensionOptionValues.clear();
}

bool QVPDE_M880::initWithManager(std::shared_ptr<QVPDEManager_M880> manager)
{
    if (!manager)
        return false;
    setManager(std::move(manager));
    loadChoiceLists();
    if (const auto *loading = dynamic_cast<const QVPDELoading_M880 *>(this))
        loadInterface(*loading);
    return true;
}

void QVPDE_M880::loadChoiceLists()
{
    const QStringList options = supportedPPDOptionKeys(); // creates the list even without a PPD
    if (!m_manager->ppd())
        return;
    for (const QString &option : options) {
        const auto choices =
            m_manager->ppd()->localizedChoicesForOptionWithBundle(option, m_manager->bundle().get());
        if (!choices)
            continue;
        QVariantList list;
        for (const QVPPDChoice_M880 &choice : *choices)
            list.append(choice.toMap());
        setValueForKey(list, option + choicesSuffix);
    }
}

void QVPDE_M880::loadInterface(const QVPDELoading_M880 &loading)
{
    const QString nibName = loading.nibNameForModel(m_manager->currentModel());
    if (nibName.isEmpty())
        return;
    if (!m_manager->bundle())
        throw platform::Exception(platform::Exception::layoutName,
                                  QStringLiteral("There is no bundle to load \"%1\" from").arg(nibName));
    m_topLevelNibObjects =
        platform::loadLayout(*m_manager->bundle(), nibName, this, loading.compiledForm(nibName));
    explainControls();
    QVDetachSliderBindingsInPDE(this, &m_updaterInfo);
    QVAttachNotificationsForSlidersInPDE(this, m_updaterInfo.get());
}

// Sets the "What's This?" texts of controls that the layout binds directly; pop-ups get theirs with their
// option. Buttons describe their action in their tooltip.
void QVPDE_M880::explainControls()
{
    for (const auto &object : m_topLevelNibObjects) {
        for (QWidget *control : object->findChildren<QWidget *>()) {
            const QString key = platform::keyPathSetBy(control).section(QLatin1Char('.'), -1);
            if (!key.isEmpty())
                control->setWhatsThis(explanationForKey(key));
            else if (control->focusPolicy() & Qt::TabFocus)
                control->setWhatsThis(control->toolTip());
        }
    }
}

QString QVPDE_M880::explanationForKey(const QString &key) const
{
    const QString name = key + QLatin1Char('?');
    const QString text = m_manager->bundle() ? m_manager->bundle()->localizedStringForKey(name) : name;
    return text == name ? QString() : text;
}

QString QVPDE_M880::helpText()
{
    return m_manager->bundle() ? m_manager->bundle()->helpText(panelKind().section(QLatin1Char('.'), -1))
                               : QString();
}

std::vector<platform::Outlet> QVPDE_M880::outlets()
{
    return {platform::outlet(QStringLiteral("view"), &m_view)};
}

void QVPDE_M880::setManager(std::shared_ptr<QVPDEManager_M880> manager)
{
    const auto oldManager = std::exchange(m_manager, std::move(manager));
}

QString QVPDE_M880::panelName()
{
    return m_manager ? m_manager->localizedStringForKey(m_panelName) : m_panelName;
}

void QVPDE_M880::setPanelName(const QString &name)
{
    m_panelName = name;
}

void QVPDE_M880::setPanelKind(const QString &kind)
{
    m_panelKind = kind;
}

void QVPDE_M880::setPanelIdentifier(const QString &identifier)
{
    m_panelKind = QStringLiteral("com.kelmar.pde.%1").arg(identifier);
}

void QVPDE_M880::setSupportedPPDOptionKeys(const QStringList &keys)
{
    m_supportedPPDOptionKeys = keys;
}

const std::optional<QStringList> &QVPDE_M880::supportedExtensionOptionKeys() const
{
    return m_supportedExtensionOptionKeys;
}

void QVPDE_M880::setSupportedExtensionOptionKeys(const QStringList &keys)
{
    m_supportedExtensionOptionKeys = keys;
}

bool QVPDE_M880::supportsOption(const QString &option)
{
    return supportedPPDOptionKeys().contains(option);
}

QVariant QVPDE_M880::valueForKey(const QString &key)
{
    if (key.endsWith(choiceSuffix))
        return choiceIndex(key.chopped(choiceSuffix.size()));
    if (!supportsOption(withoutSuffix(key, choicesSuffix)))
        return KeyValueObject::valueForKey(key);
    const QVariant value = m_ppdOptionValues.value(key);
    return value.isValid() ? value : defaultValueForKey(key);
}

QVariant QVPDE_M880::choiceIndex(const QString &option)
{
    const QVariantList choices = valueForKey(option + choicesSuffix).toList();
    const QVariant current = valueForKey(option);
    if (current.typeId() != QMetaType::QString) // a number is not a keyword, even if it is spelled like one
        return {};
    const auto found = std::ranges::find_if(choices, [&current](const QVariant &choice) {
        return choice.toMap().value(QVPPDChoiceKey).toString() == current.toString();
    });
    return found == choices.end() ? QVariant() : QVariant(int(found - choices.begin()));
}

void QVPDE_M880::setValueForKey(const QVariant &value, const QString &key)
{
    if (key.endsWith(choiceSuffix))
        setChoiceIndex(value, key.chopped(choiceSuffix.size()));
    else if (!supportsOption(withoutSuffix(key, choicesSuffix)))
        KeyValueObject::setValueForKey(value, key);
    else
        setOptionValue(value, key);
}

void QVPDE_M880::setChoiceIndex(const QVariant &index, const QString &option)
{
    const QVariantList choices = valueForKey(option + choicesSuffix).toList();
    const qint32 position = integerValue(index);
    if (position < 0 || position >= choices.size())
        throw platform::Exception(platform::Exception::rangeName,
                                  QStringLiteral("The index is outside the %1 choices of %2")
                                      .arg(QString::number(choices.size()), option));
    setValueForKey(choices[position].toMap().value(QVPPDChoiceKey), option);
}

void QVPDE_M880::setOptionValue(const QVariant &value, const QString &key)
{
    if (!value.isValid())
        throw platform::Exception(platform::Exception::invalidArgumentName,
                                  QStringLiteral("%1 cannot be set to null").arg(key));
    const QString indexKey = key + choiceSuffix;
    willChangeValueForKey(key);
    willChangeValueForKey(indexKey);
    m_ppdOptionValues.insert(key, value);
    didChangeValueForKey(indexKey);
    didChangeValueForKey(key);
    if (m_manager && m_manager->notificationCenter())
        m_manager->notificationCenter()->postNotification(key, this,
                                                          {{platform::NSKeyValueChangeNewKey, value}});
}

QVariant QVPDE_M880::defaultValueForKey(const QString &key)
{
    if (!m_manager || !m_manager->ppd())
        return {};
    const auto choice = m_manager->ppd()->defaultChoiceForOption(key);
    return choice ? QVariant(choice->choice) : QVariant();
}

void QVPDE_M880::setDefaultValueForKey(const QString &key)
{
    const QVariant value = defaultValueForKey(key);
    if (value.isValid())
        setValueForKey(value, key);
}

bool QVPDE_M880::restoreValuesAndReturnError(QString *)
{
    const QStringList keys = supportedPPDOptionKeys();
    const QVariantMap saved = m_manager->ppdDictionaryForOptions(keys).value_or(QVariantMap());
    try {
        for (const QString &key : keys) {
            if (const QVariant value = saved.value(key); value.isValid())
                setValueForKey(value, key);
            else
                setDefaultValueForKey(key);
        }
    } catch (const platform::Exception &exception) {
        logException(exception);
    }
    return true;
}

bool QVPDE_M880::saveValuesAndReturnError(QString *)
{
    try {
        platform::TextField::resignFirstResponder(m_view);
        const QStringList keys = supportedPPDOptionKeys();
        auto values = m_manager->ppdDictionaryForOptions(keys);
        if (!values) // the host stores no choices for this panel
            return true;
        for (const QString &key : keys) {
            const QVariant value = valueForKey(key);
            if (value.isValid())
                values->insert(key, value);
            else
                values->remove(key);
        }
        m_manager->setPpdDictionaryForOptions(*values, keys);
    } catch (const platform::Exception &exception) {
        logException(exception);
    }
    return true;
}

QMap<QString, QString> QVPDE_M880::summaryInfo()
{
    QMap<QString, QString> summary;
    for (const QString &option : supportedPPDOptionKeys()) {
        const QString text = summaryForKey(option);
        if (!text.isNull() && m_manager->ppd())
            summary.insert(m_manager->ppd()->localizedOptionNameWithBundle(option, m_manager->bundle().get()),
                           text);
    }
    return summary;
}

QString QVPDE_M880::summaryForKey(const QString &key)
{
    const auto marked = m_manager->ppd() ? m_manager->ppd()->markedChoiceForOption(key) : std::nullopt;
    return marked ? marked->text : QString();
}

void QVPDE_M880::sliderDidMove(QObject *sender)
{
    const auto *slider = qobject_cast<const QSlider *>(sender);
    if (!slider || !m_updaterInfo)
        return;
    QString key;
    for (auto entry = m_updaterInfo->cbegin(); entry != m_updaterInfo->cend(); ++entry) {
        if (entry.value() == slider)
            key = entry.key();
    }
    // The position is that of the knob while the user drags it; the slider's value changes only on release.
    if (!key.isNull())
        setValueForKeyPath(QString::number(slider->sliderPosition()), key);
}

void QVPDE_M880::observeValueForKeyPathOfObjectChangeContext(const QString &, platform::KeyValueObject *,
                                                             const QVariantMap &change, QObject *context)
{
    auto *slider = qobject_cast<QSlider *>(context);
    if (!slider)
        return;
    const double value = std::clamp(floatingPointValue(change.value(platform::NSKeyValueChangeNewKey)),
                                    double(slider->minimum()), double(slider->maximum()));
    // Through the property, as a binding does, since a slider may distinguish a value set by a program from
    // one set by the user.
    slider->setProperty("value", qRound(value));
}
