// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"

#include <memory>

class QWidget;

// Hosts older than Darwin 9.0 do not drive sliders by bindings, so there the panel drives them itself. On
// newer systems, and in builds without KELMAR_OLDER_HOSTS, the two panel-level functions do nothing and give
// false.

// Takes the value bindings off the sliders of the panel's view and notes them in the registry, made when
// null.
bool QVDetachSliderBindingsInPDE(QVPDE_M880 *panel, std::unique_ptr<SliderRegistry> *registry);
// Makes the panel observe each key of the registry, and each slider report to the panel.
bool QVAttachNotificationsForSlidersInPDE(QVPDE_M880 *panel, SliderRegistry *registry);
#if KELMAR_OLDER_HOSTS
// Gives what the last slider or sub-view looked at gave.
bool QVDetachSliderBindingsInView(QWidget *view, SliderRegistry *registry);
#endif
