#pragma once

#include "activex/class_info.h"
#include "activex/control.h"
#include "activex/element_interface.h"
#include "activex/error_support.h"
#include "activex/in_place_active_object.h"
#include "activex/in_place_object.h"
#include "activex/ole_control.h"
#include "activex/ole_object.h"
#include "activex/persist_property_bag.h"
#include "activex/persist_storage.h"
#include "activex/persist_stream.h"
#include "activex/view_object.h"

namespace plexel::activex {

/// The interfaces of a control, but for its connection points.
struct Control::Faces {
  explicit Faces(Control& whole)
      : element(whole),
        object(whole),
        control(whole),
        inPlace(whole),
        active(whole),
        view(whole),
        bag(whole),
        stream(whole),
        storage(whole),
        classInfo(whole),
        errors(whole) {}

  ElementInterface element;
  OleObject object;
  OleControl control;
  InPlaceObject inPlace;
  InPlaceActiveObject active;
  ViewObject view;
  PersistPropertyBag bag;
  PersistStream stream;
  PersistStorage storage;
  ClassInfo classInfo;
  ErrorSupport errors;
};

}  // namespace plexel::activex
