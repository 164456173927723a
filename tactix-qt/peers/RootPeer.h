#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/peers/ContainerPeer.h"

namespace tactix::qt {

class ControlWidget;

/// The container of the outermost control. It fills a ControlWidget, to which it passes on what concerns the control as
/// a whole. It is a widget of its own so that it can outlive the ControlWidget while a handler runs.
class TACTIX_QT_EXPORT RootPeer final : public ContainerPeer {
 public:
  RootPeer(Extender& extender, ControlWidget& shell);

 protected:
  void Update(Aspect aspect) override;

 private:
  ControlWidget& shell_;
};

}  // namespace tactix::qt
