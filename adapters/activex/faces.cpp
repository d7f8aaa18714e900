#include "activex/faces.h"

#include <array>

#include "activex/connection_points.h"

namespace plexel::activex {

IUnknown* Control::FaceOf(REFIID iid) {
  struct Row {
    const IID& iid;
    IUnknown* face;
  };
  // Bases of interfaces are reached by one of those that have them.
  const std::array rows = {
      Row{__uuidof(_ctlPlexelBaseElement), &faces_->element},
      Row{__uuidof(IDispatch), &faces_->element},
      Row{__uuidof(IOleObject), &faces_->object},
      Row{__uuidof(IOleControl), &faces_->control},
      Row{__uuidof(IOleInPlaceObject), &faces_->inPlace},
      Row{__uuidof(IOleWindow), &faces_->inPlace},
      Row{__uuidof(IOleInPlaceActiveObject), &faces_->active},
      Row{__uuidof(IViewObject2), &faces_->view},
      Row{__uuidof(IViewObject), &faces_->view},
      Row{__uuidof(IPersistPropertyBag), &faces_->bag},
      Row{__uuidof(IPersistStreamInit), &faces_->stream},
      Row{__uuidof(IPersist), &faces_->stream},
      Row{__uuidof(IPersistStorage), &faces_->storage},
      Row{__uuidof(IConnectionPointContainer), points_.get()},
      Row{__uuidof(IProvideClassInfo2), &faces_->classInfo},
      Row{__uuidof(IProvideClassInfo), &faces_->classInfo},
      Row{__uuidof(ISupportErrorInfo), &faces_->errors},
  };
  for (const Row& row : rows) {
    if (row.iid == iid) return row.face;
  }
  return nullptr;
}

}  // namespace plexel::activex
