#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

class Control;

enum class ScaleUnit { Twips, Pixels };

/// A control as its container sees it: its place, visibility and z-order there, and the root of its child widgets.
/// Its place is in the units of the control around it, or in twips when there is none.
class TACTIX_EXPORT Extender final : public Widget {
 public:
  Extender(Control& control, Site& site) : control_(control), site_(site) {}

  WidgetKind Kind() const override { return WidgetKind::Extender; }

  Control& ItsControl() const { return control_; }

  /// The unit of the child widgets' places. Twips by default.
  ScaleUnit Scale() const { return scale_; }
  void Scale(ScaleUnit unit) { scale_ = unit; }
  /// The control's inner size in its own scale units.
  float ScaleWidth() const;
  float ScaleHeight() const;
  float TwipsPerInnerUnit() const { return scale_ == ScaleUnit::Pixels ? TwipsPerPixel : 1.0F; }

  /// The size as designed; unlike the size's setters it notifies nobody.
  void DesignSize(float width, float height);

  Site* OwnerSite() const override { return &site_; }
  float TwipsPerUnit() const override;
  bool ReadMember(std::string_view name, Variant& value) const override;
  bool WriteMember(std::string_view name, const Variant& value) override;
  bool CallMember(std::string_view name, std::span<Variant> arguments, Variant& result) override;

  static constexpr float TwipsPerPixel = 15.0F;

 private:
  friend class Control;  // which marks it as gone
  void PlaceChanged(bool sizeChanged) override;

  Control& control_;
  Site& site_;
  ScaleUnit scale_ = ScaleUnit::Twips;
};

}  // namespace tactix
