#include "tests/support/CallOutHost.h"

#include "tactix/companion/Edition.h"
#include "tactix/companion/StrategyDataBlock.h"
#include "tactix/counting/CounterValueObject.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/shared/DecisionBlock.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support/Catalogue.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {

namespace {

std::shared_ptr<FakeCatalogue> MakeCatalogue(CallOuts& calls) {
  auto catalogue = std::make_shared<FakeCatalogue>();
  catalogue->DescribeBetting(2);
  catalogue->DescribeCounts();
  catalogue->OnCall = [&calls, ender = std::make_shared<Ender>(calls)](const std::string&) {
    calls.Happen(CallOut::Catalogue);
  };
  return catalogue;
}

ObjectRef MakeEdition(CallOuts& calls) {
  return std::make_shared<HostObject>(calls, CallOut::Edition, std::make_shared<companion::Edition>());
}

ObjectRef MakeDataBlock(CallOuts& calls) {
  return std::make_shared<HostObject>(calls, CallOut::DataBlock, std::make_shared<companion::StrategyDataBlock>());
}

/// A soft hand under restrictions, so that every field is read; all plays are legal, and hitting is advised.
ObjectRef MakeDecisionBlock(CallOuts& calls) {
  const auto block = std::make_shared<DecisionBlock>();
  block->HardTotal(7);
  block->SoftTotal(7);
  block->ManualPlayerRestrictions(true);
  block->SplitIsValid(true);
  block->SurrenderIsValid(true);
  block->HardDoubleIsValid(true);
  block->SoftDoubleIsValid(true);
  block->PlayingLogEnabled(true);
  block->StrategyAdvice(1);
  return std::make_shared<HostObject>(calls, CallOut::DecisionBlock, block);
}

ObjectRef MakeFlashedObject(CallOuts& calls) {
  const auto members = std::make_shared<PropertyObject>();
  for (const char* name : {"Visible", "Enabled", "DEFAULT"}) members->Set(name, true);
  return std::make_shared<HostObject>(calls, CallOut::FlashedObject, members);
}

}  // namespace

CallOutHost::CallOutHost(const CatalogueEntry& entry) : window_(std::make_unique<Window>(Calls)) {
  window_->control = entry.make(window_->site);
  SetTheHooks();
  window_->control->InitProperties();
  handle_ = window_->control->Handle();
  for (const CataloguedProperty& property : entry.properties) {
    if (property.saved != Saved::No) window_->bag.Stored.Write(property.SavedName(), property.other);
  }
  for (const CataloguedEvent& event : entry.events(*window_->control)) {
    event.connect([this, ender = std::make_shared<Ender>(Calls)] { Calls.Happen(CallOut::Event); });
  }
  RenewTheObjects();
}

CallOutHost::~CallOutHost() {
  Calls.Disarm();
  DestroyWindow();
  StrategyListData::CreateCatalogueWith(nullptr);
  DefaultEdition::CreateWith(nullptr);
  DefaultStrategyData::CreateWith(nullptr);
  CounterValueObject::CreateWith(nullptr);
}

void CallOutHost::SetTheHooks() {
  StrategyListData::UseCatalogue(nullptr);
  StrategyListData::CreateCatalogueWith([this] {
    auto catalogue = MakeCatalogue(Calls);
    Calls.Happen(CallOut::Factory);
    return catalogue;
  });
  DefaultEdition::CreateWith([this] {
    ObjectRef edition = MakeEdition(Calls);
    Calls.Happen(CallOut::Factory);
    return edition;
  });
  DefaultStrategyData::CreateWith([this] {
    ObjectRef block = MakeDataBlock(Calls);
    Calls.Happen(CallOut::Factory);
    return block;
  });
  CounterValueObject::CreateWith([this] {
    auto value = std::make_shared<HostCounterValue>(Calls);
    Calls.Happen(CallOut::Factory);
    return value;
  });
}

void CallOutHost::RenewTheObjects() {
  window_->edition = MakeEdition(Calls);
  window_->collection = std::make_shared<HostObject>(Calls, CallOut::Collection, std::make_shared<FakeCollection>(3));
  window_->dataBlock = MakeDataBlock(Calls);
  window_->flashedObject = MakeFlashedObject(Calls);
  window_->decisionBlock = MakeDecisionBlock(Calls);
}

void CallOutHost::DestroyControl() {
  if (!ItsControl()) return;
  Calls.ControlIsGone();
  controlIsEnding_ = true;
  window_->control.reset();
  controlIsEnding_ = false;
}

void CallOutHost::DestroyWindow() {
  if (controlIsEnding_) return;
  DestroyControl();
  window_.reset();
  StrategyListData::UseCatalogue(nullptr);
}

}  // namespace tactix::tests
