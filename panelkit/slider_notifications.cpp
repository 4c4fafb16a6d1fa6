// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/slider_notifications.h"

#include "panelkit/panel_base.h"

#if KELMAR_OLDER_HOSTS

#include "platform/binding.h"
#include "platform/exception.h"
#include "platform/logging.h"
#include "plugin/manager.h"
#include "ppd/version_info.h"

#include <QSlider>
#include <QTimer>

namespace {

const QString valueBinding = QStringLiteral("value");

// A system of unknown version counts as newer.
bool isOlderHost(const QVPDEManager_M880 *manager)
{
    const auto system = manager ? manager->darwinVersion() : nullptr;
    return system && system->compare(QVLeopardDarwinVersion) < 0;
}

void report(QVPDE_M880 *panel, QSlider *slider)
{
    try {
        panel->sliderDidMove(slider);
    } catch (const platform::Exception &exception) {
        qCWarning(lcPanels).noquote() << exception.description();
    }
}

// Makes a slider report to the panel when it is pressed and released, repeatedly while it is held, and at
// each step by keyboard, wheel or groove.
void sendActionToPanel(QSlider *slider, QVPDE_M880 *panel)
{
    constexpr int periodInMilliseconds = 75;

    slider->setTracking(false);
    auto *period = new QTimer(slider);
    period->setInterval(periodInMilliseconds);
    const auto action = [slider, panel] { report(panel, slider); };
    QObject::connect(slider, &QSlider::sliderPressed, period, qOverload<>(&QTimer::start));
    QObject::connect(slider, &QSlider::sliderReleased, period, &QTimer::stop);
    QObject::connect(slider, &QSlider::sliderPressed, panel, action);
    QObject::connect(slider, &QSlider::sliderReleased, panel, action);
    QObject::connect(period, &QTimer::timeout, panel, action);
    QObject::connect(slider, &QSlider::actionTriggered, panel, [action](int kind) {
        if (kind != QAbstractSlider::SliderMove)
            action();
    });
}

} // namespace

bool QVDetachSliderBindingsInView(QWidget *view, SliderRegistry *registry)
{
    bool detached = false;
    for (QWidget *subview : view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        auto *slider = qobject_cast<QSlider *>(subview);
        const auto *binding = slider ? platform::Binding::infoForBinding(slider, valueBinding) : nullptr;
        if (binding) {
            registry->insert(binding->observedKeyPath(), slider);
            platform::Binding::unbind(slider, valueBinding);
            detached = true;
        } else {
            detached = QVDetachSliderBindingsInView(subview, registry);
        }
    }
    return detached;
}

bool QVDetachSliderBindingsInPDE(QVPDE_M880 *panel, std::unique_ptr<SliderRegistry> *registry)
{
    if (!registry || !isOlderHost(panel->manager().get()))
        return false;
    if (!*registry)
        *registry = std::make_unique<SliderRegistry>();
    return panel->panelView() && QVDetachSliderBindingsInView(panel->panelView(), registry->get());
}

bool QVAttachNotificationsForSlidersInPDE(QVPDE_M880 *panel, SliderRegistry *registry)
{
    if (!registry || !isOlderHost(panel->manager().get()))
        return false;
    for (auto entry = registry->cbegin(); entry != registry->cend(); ++entry) {
        panel->addObserverForKeyPath(panel, entry.key(), entry.value());
        sendActionToPanel(entry.value(), panel);
    }
    return !registry->isEmpty();
}

#else

bool QVDetachSliderBindingsInPDE(QVPDE_M880 *, std::unique_ptr<SliderRegistry> *)
{
    return false;
}

bool QVAttachNotificationsForSlidersInPDE(QVPDE_M880 *, SliderRegistry *)
{
    return false;
}

#endif
