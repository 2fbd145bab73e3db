#include <iterator>

#include "apiwrapper/ZeltoEventHandlers.h"
#include "apiwrapper/tables/Events.h"

namespace {

using namespace zelto_events;

// clang-format off
constexpr ZeltoEventRow kEvents[] = {
    {ZEEventNumber::PropertyChange,             PropertyChanged},
    {ZEEventNumber::ObjectDelete,               ObjectDeleted},
    {ZEEventNumber::LibStatusChange,            NotifyStatus<Zelto::LIBSTATUS,          &Zelto::OnLibStatusChange>},
    {ZEEventNumber::ConnStatusChange,           NotifyStatus<Zelto::CONNSTATUS,         &Zelto::OnConnStatusChange>},
    {ZEEventNumber::FileError,                  NotifyStatus<Zelto::FILEERROR,          &Zelto::OnFileError>},
    {ZEEventNumber::ProxyAuthenticationFailure, NotifyStatus<Zelto::PROXYTYPE,          &Zelto::OnProxyAuthenticationFailure>},
    {ZEEventNumber::AvailableDeviceListChange,  Notify<&Zelto::OnAvailableDeviceListChange>},
    {ZEEventNumber::NrgLevelsChange,            Notify<&Zelto::OnNrgLevelsChange>},
    {ZEEventNumber::GroupChanged,               GroupChanged},
    {ZEEventNumber::NewCustomContactGroup,      NotifyObject<ContactGroup, &Zelto::getContactGroup, &Zelto::OnNewCustomContactGroup>},
    {ZEEventNumber::ContactOnlineAppearance,    NotifyObject<Contact,      &Zelto::getContact,      &Zelto::OnContactOnlineAppearance>},
    {ZEEventNumber::ContactGoneOffline,         ContactGoneOffline},
    {ZEEventNumber::NewCall,                    NotifyObject<Call,         &Zelto::getCall,         &Zelto::OnNewCall>},
    {ZEEventNumber::IncomingDTMF,               IncomingDTMF},
    {ZEEventNumber::IncomingTransfer,           NotifyObject<Transfer,     &Zelto::getTransfer,     &Zelto::OnIncomingTransfer>},
    {ZEEventNumber::IncomingVoicemail,          NotifyObject<Voicemail,    &Zelto::getVoicemail,    &Zelto::OnIncomingVoicemail>},
    {ZEEventNumber::ChatMessage,                ChatMessageArrived},
    {ZEEventNumber::Ignored,                    Ignore},
    {ZEEventNumber::UpgradeInfo,                UpgradeInfo},
    {ZEEventNumber::NewSearchResult,            NewSearchResult},
    {ZEEventNumber::Datagram,                   Datagram},
    {ZEEventNumber::IncomingPriceQuote,         NotifyObject<PriceQuote,   &Zelto::getPriceQuote,   &Zelto::OnIncomingPriceQuote>},
    {ZEEventNumber::IncomingAlert,              NotifyObject<Alert,        &Zelto::getAlert,        &Zelto::OnIncomingAlert>},
    {ZEEventNumber::UICRequest,                 UICRequest},
    {ZEEventNumber::LastFrameCapture,           LastFrameCaptured},
    {ZEEventNumber::RConnectionStatusChange,    NotifyStatus<Zelto::RCONNECTION_STATUS, &Zelto::OnRConnectionStatusChange>},
};
// clang-format on
static_assert(std::size(kEvents) == std::size(ALL_EVENTS));

}  // namespace

const ZeltoEventRow* findZeltoEvent(int number) {
  for (const ZeltoEventRow& row : kEvents) {
    if (row.number == number) return &row;
  }
  return nullptr;
}
