// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMap>
#include <QPointer>
#include <QSlider>

#include <memory>

class QVPDE_M880;
class QWidget;

// Maps observed key paths to sliders; used only on the slider path of older hosts.
using SliderRegistry = QMap<QString, QPointer<QSlider>>;

// Hosts older than Darwin 9.0 do not drive sliders by bindings, so there the panel drives them. On newer
// systems, and in builds without KELMAR_OLDER_HOSTS, the two panel-level functions do nothing and return
// false.

// Removes the value bindings of the sliders in the panel's view and records them in the registry, which is
// created if it is null.
bool QVDetachSliderBindingsInPDE(QVPDE_M880 *panel, std::unique_ptr<SliderRegistry> *registry);
// Makes the panel observe each key of the registry, and each slider report to the panel.
bool QVAttachNotificationsForSlidersInPDE(QVPDE_M880 *panel, SliderRegistry *registry);
#if KELMAR_OLDER_HOSTS
// Returns the result for the last slider or sub-view that was visited.
bool QVDetachSliderBindingsInView(QWidget *view, SliderRegistry *registry);
#endif
