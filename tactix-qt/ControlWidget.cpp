#include "tactix-qt/ControlWidget.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <algorithm>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/PropertyWatch.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/Keys.h"
#include "tactix-qt/peers/PeerTree.h"
#include "tactix-qt/peers/RootPeer.h"
#include "tactix-qt/peers/TextGrowth.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/UserAction.h"

namespace tactix::qt {

namespace {

constexpr int SmallestSide = 16;

/// The name of the property that is saved under another one; empty where that is its own.
std::string OwnNameOf(std::string_view savedAs, const Control& control) {
  for (const PropertyTable::Row& row : control.Properties().Rows()) {
    if (row.savedAs == savedAs && row.name != savedAs) return row.name;
  }
  return {};
}

}  // namespace

ControlWidget::ControlWidget(QWidget* parent)
    : QWidget(parent), site_(std::make_unique<QtSite>(*this)), watch_(std::make_unique<PropertyWatch>(*this)) {}

ControlWidget::ControlWidget(Maker make, QWidget* parent) : ControlWidget(parent) { Own(make(*site_)); }

ControlWidget::~ControlWidget() { EndControl(); }

void ControlWidget::EndControl() {
  watch_->Stop();
  if (control_) control_->Terminated();
  RetireNatives();
  // Out of the member first: what the ending control calls may ask for it.
  const std::unique_ptr<Control> ending = std::move(owned_);
  control_ = nullptr;
}

void ControlWidget::RetireNatives() {
  setFocusProxy(nullptr);
  setFocusPolicy(Qt::NoFocus);
  if (RootPeer* root = std::exchange(root_, nullptr)) {
    ReleasePeers(*root);
    Retire(*root);
  }
}

void ControlWidget::ControlAttached(Control& control) { control_ = &control; }

void ControlWidget::ControlDetached(Control& control) {
  if (control_ != &control) return;
  control_ = nullptr;
  RetireNatives();
}

void ControlWidget::Own(std::unique_ptr<Control> control) {
  owned_ = std::move(control);
  owned_->InitProperties();
  Host(*owned_);
}

void ControlWidget::Host(Control& control) {
  control_ = &control;
  Extender& extender = control.Extender();
  const QSize designed(ToPixels(extender.Width()), ToPixels(extender.Height()));
  hint_ = designed;
  place_ = QPoint(ToPixels(extender.Left()), ToPixels(extender.Top()));
  resize(designed);
  root_ = new RootPeer(extender, *this);
  root_->setGeometry(rect());
  MakePeers(extender, *site_, *root_);
  OrderTabs(extender, *root_);
  // Not for Tab, which looks at the proxy's: QWidget::setTabOrder() passes over a widget that has none.
  setFocusPolicy(Qt::TabFocus);
  FindFocusEntry();
  root_->setVisible(true);
  if (!extender.Visible()) setVisible(false);
  if (!extender.Enabled()) setEnabled(false);
  setToolTip(ToQt(extender.ToolTipText()));
  FontsChanged();
  updateGeometry();
}

void ControlWidget::FindFocusEntry() {
  if (!control_ || !root_) return;
  QWidget& entry = FocusEntry(control_->Extender(), *root_);
  if (focusProxy() != &entry) setFocusProxy(&entry);
}

void ControlWidget::setUserMode(bool running) {
  if (running == userMode()) return;
  site_->UserMode(running);
  const QPointer<ControlWidget> self(this);
  if (control_) RunUserAction(*site_, [this] { control_->AmbientChanged(); });
  if (self) CompareProperties();
}

void ControlWidget::readProperties(PropertyBag& bag) {
  const QPointer<ControlWidget> self(this);
  if (control_) RunUserAction(*site_, [&] { control_->ReadProperties(bag); });
  if (self) CompareProperties();
}

void ControlWidget::writeProperties(PropertyBag& bag) {
  if (control_) RunUserAction(*site_, [&] { control_->WriteProperties(bag); });
}

QSize ControlWidget::sizeHint() const { return hint_.isValid() ? hint_.toSize() : QWidget::sizeHint(); }

QSize ControlWidget::minimumSizeHint() const {
  if (!hint_.isValid()) return QWidget::minimumSizeHint();
  const QSize hint = sizeHint();
  return {std::max(hint.width() / 2, std::min(hint.width(), SmallestSide)),
          std::max(hint.height() / 2, std::min(hint.height(), SmallestSide))};
}

void ControlWidget::FontsChanged() {
  if (!root_) return;
  const QSizeF growth = TextGrowth(*root_);
  if (growth == growth_) return;
  hint_ = QSizeF(hint_.width() * growth.width() / growth_.width(), hint_.height() * growth.height() / growth_.height());
  growth_ = growth;
  updateGeometry();
}

void ControlWidget::NotifyPropertyChanged(std::string_view name) {
  static const QMetaMethod signal = QMetaMethod::fromSignal(&ControlWidget::propertyChanged);
  const QPointer<ControlWidget> self(this);
  if (isSignalConnected(signal)) {
    const std::string ownName = control_ ? OwnNameOf(name, *control_) : std::string();
    Q_EMIT propertyChanged(ToQt(name));
    if (self && !ownName.empty()) Q_EMIT propertyChanged(ToQt(ownName));
  }
  if (self) CompareProperties();
}

void ControlWidget::NotifyTouched() { watch_->CompareLater(); }

void ControlWidget::CompareProperties() const { watch_->Compare(); }

void ControlWidget::Reset(std::string_view property, ResetBy way) {
  if (!control_) return;
  const QPointer<ControlWidget> self(this);
  RunUserAction(*site_, [&] {
    Control& control = *control_;
    const PropertyTable& table = control.Properties();
    const PropertyTable::Row& row = *table.Find(property);
    for (const PropertyTable::SavedRow& saved : table.SavedRows()) {
      if (saved.name != row.savedAs) continue;
      (way == ResetBy::Setting ? row.set : saved.restore)(control, saved.defaultValue(control));
      return;
    }
  });
  if (self) CompareProperties();
}

void ControlWidget::connectNotify(const QMetaMethod& signal) {
  watch_->Add(signal);
  QWidget::connectNotify(signal);
}

void ControlWidget::disconnectNotify(const QMetaMethod& signal) {
  watch_->ListenerGone();
  QWidget::disconnectNotify(signal);
}

void ControlWidget::NotifyUnhandled(const Error& error) {
  if (watch_->IsReading()) return;
  static const QMetaMethod signal = QMetaMethod::fromSignal(&ControlWidget::unhandledError);
  if (isSignalConnected(signal)) {
    Q_EMIT unhandledError(ToQt(error.Description()), error.Code());
  } else {
    qWarning("%s: error %d: %s", metaObject()->className(), static_cast<int>(error.Code()),
             error.Description().c_str());
  }
}

void ControlWidget::ExtenderMoved() {
  if (adopting_ || !control_) return;
  const Extender& extender = control_->Extender();
  const QSize size(ToPixels(extender.Width()), ToPixels(extender.Height()));
  const QPoint place(ToPixels(extender.Left()), ToPixels(extender.Top()));
  if (size != sizeHint()) {
    hint_ = size;
    updateGeometry();
  }
  if (size != this->size()) resize(size);
  root_->setGeometry(rect());
  // Compared with where the control was, not with pos(): Qt holds move events back while a widget is hidden.
  if (place == place_) return;
  place_ = place;
  move(place);
}

void ControlWidget::AdoptGeometry() {
  if (!control_ || !root_) return;
  root_->setGeometry(rect());
  Extender& extender = control_->Extender();
  place_ = pos();
  // A fraction of a pixel that the control has set stays as long as the pixels agree.
  const auto adopt = [](int pixels, float twips) { return ToPixels(twips) == pixels ? twips : ToTwips(pixels); };
  {
    const QScopedValueRollback<bool> adopting(adopting_, true);
    RunUserAction(*site_, [&] {
      extender.Place(adopt(x(), extender.Left()), adopt(y(), extender.Top()), adopt(width(), extender.Width()),
                     adopt(height(), extender.Height()));
    });
  }
  // The control may insist on a size of its own.
  if (control_ && QSize(ToPixels(extender.Width()), ToPixels(extender.Height())) != size()) ExtenderMoved();
}

void ControlWidget::resizeEvent(QResizeEvent*) { AdoptGeometry(); }

void ControlWidget::moveEvent(QMoveEvent*) { AdoptGeometry(); }

void ControlWidget::showEvent(QShowEvent* event) {
  if (event->spontaneous()) return;
  if (window_ != window()) {
    if (window_) window_->removeEventFilter(this);
    window_ = window();
    window_->installEventFilter(this);
  }
  // Later: Qt does not survive a widget that is deleted while it is being shown.
  const auto displayed = [this] {
    if (control_) RunUserAction(*site_, [this] { control_->Displayed(); });
  };
  QMetaObject::invokeMethod(this, displayed, Qt::QueuedConnection);
}

void ControlWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (!control_) return;
  switch (event->type()) {
    case QEvent::FontChange:
      if (root_) ShowFonts(*root_);
      FontsChanged();
      [[fallthrough]];
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
      RunUserAction(*site_, [this] { control_->AmbientChanged(); });
      break;
    case QEvent::EnabledChange:
      // The host's own flag; a disabled parent is none of the control's business.
      RunUserAction(*site_, [this] { control_->Extender().Enabled(!testAttribute(Qt::WA_ForceDisabled)); });
      break;
    default:
      break;
  }
}

bool ControlWidget::event(QEvent* event) {
  const bool shown = event->type() == QEvent::ShowToParent;
  if (control_ && root_ && (shown || event->type() == QEvent::HideToParent)) {
    const QPointer<ControlWidget> self(this);
    RunUserAction(*site_, [&] { control_->Extender().Visible(shown); });
    if (!self) return true;
  }
  return QWidget::event(event);
}

bool ControlWidget::eventFilter(QObject*, QEvent* event) {
  // Enter that nothing in the window wanted, wherever the focus is.
  return event->type() == QEvent::KeyPress && PressDefaultButton(static_cast<QKeyEvent&>(*event), *site_);
}

}  // namespace tactix::qt
