// The sizes of records are part of the interface of the 32-bit library.
#include <stddef.h>

#include "api/kelvra.h"

namespace kelvra {
namespace {

constexpr bool kPointersAre32Bits = sizeof(void*) == 4;

// Holds everywhere but where pointers are four octets wide.
template <class Record>
constexpr bool Occupies(size_t octets) {
  return !kPointersAre32Bits || sizeof(Record) == octets;
}

static_assert(Occupies<h225::ANSI41UIM>(149));
static_assert(Occupies<h225::AlertingUUIE>(775));
static_assert(Occupies<h225::AliasAddress>(159));
static_assert(Occupies<h225::AltGKInfo>(13));
static_assert(Occupies<h225::AlternateGK>(51));
static_assert(Occupies<h225::AlternateTransportAddresses>(13));
static_assert(Occupies<h225::CallCapacity>(218));
static_assert(Occupies<h225::CallCapacityInfo>(103));
static_assert(Occupies<h225::CallCreditServiceControl>(52));
static_assert(Occupies<h225::CallIdentifier>(12));
static_assert(Occupies<h225::CallLinkage>(28));
static_assert(Occupies<h225::CallProceedingUUIE>(513));
static_assert(Occupies<h225::CallTerminationCause>(31));
static_assert(Occupies<h225::CallType>(6));
static_assert(Occupies<h225::CallsAvailable>(20));
static_assert(Occupies<h225::CicInfo>(17));
static_assert(Occupies<h225::CircuitIdentifier>(50));
static_assert(Occupies<h225::CircuitInfo>(121));
static_assert(Occupies<h225::ConferenceList>(204));
static_assert(Occupies<h225::Content>(164));
static_assert(Occupies<h225::CryptoH323Token>(434));
static_assert(Occupies<h225::DataRate>(39));
static_assert(Occupies<h225::EncryptIntAlg>(26));
static_assert(Occupies<h225::Endpoint>(530));
static_assert(Occupies<h225::EndpointType>(248));
static_assert(Occupies<h225::EnumeratedParameter>(185));
static_assert(Occupies<h225::ExtendedAliasAddress>(185));
static_assert(Occupies<h225::FacilityReason>(6));
static_assert(Occupies<h225::FacilityUUIE>(893));
static_assert(Occupies<h225::FeatureSet>(35));
static_assert(Occupies<h225::GSMUIM>(76));
static_assert(Occupies<h225::GatekeeperInfo>(29));
static_assert(Occupies<h225::GatewayInfo>(38));
static_assert(Occupies<h225::GenericData>(27));
static_assert(Occupies<h225::GenericIdentifier>(13));
static_assert(Occupies<h225::GroupID>(21));
static_assert(Occupies<h225::H221NonStandard>(8));
static_assert(Occupies<h225::H245Security>(112));
static_assert(Occupies<h225::H323UUPDU>(1450));
static_assert(Occupies<h225::H323UserInformation>(1471));
static_assert(Occupies<h225::ICV>(16));
static_assert(Occupies<h225::InformationUUIE>(185));
static_assert(Occupies<h225::IntegrityMechanism>(36));
static_assert(Occupies<h225::McuInfo>(38));
static_assert(Occupies<h225::MobileUIM>(154));
static_assert(Occupies<h225::NonIsoIntegrityMechanism>(31));
static_assert(Occupies<h225::NonStandardIdentifier>(13));
static_assert(Occupies<h225::NonStandardParameter>(21));
static_assert(Occupies<h225::NonStandardProtocol>(43));
static_assert(Occupies<h225::NotifyUUIE>(42));
static_assert(Occupies<h225::PartyNumber>(19));
static_assert(Occupies<h225::PresentationIndicator>(6));
static_assert(Occupies<h225::ProgressUUIE>(470));
static_assert(Occupies<h225::Q931MessageRecord>(1750));
static_assert(Occupies<h225::Q954Details>(12));
static_assert(Occupies<h225::QseriesOptions>(44));
static_assert(Occupies<h225::RasMessageRecord>(910));
static_assert(Occupies<h225::ReleaseCompleteReason>(26));
static_assert(Occupies<h225::ReleaseCompleteUUIE>(377));
static_assert(Occupies<h225::ScnConnectionAggregation>(6));
static_assert(Occupies<h225::ScnConnectionType>(6));
static_assert(Occupies<h225::ScreeningIndicator>(8));
static_assert(Occupies<h225::SecurityCapabilities>(107));
static_assert(Occupies<h225::SecurityServiceMode>(26));
static_assert(Occupies<h225::ServiceControlDescriptor>(57));
static_assert(Occupies<h225::ServiceControlSession>(72));
static_assert(Occupies<h225::SetupAcknowledgeUUIE>(42));
static_assert(Occupies<h225::SetupUUIE>(1197));
static_assert(Occupies<h225::SetupUUIE::ConnectionParameters>(18));
static_assert(Occupies<h225::StatusInquiryUUIE>(42));
static_assert(Occupies<h225::StatusUUIE>(42));
static_assert(Occupies<h225::SupportedPrefix>(188));
static_assert(Occupies<h225::SupportedProtocols>(142));
static_assert(Occupies<h225::T38FaxAnnexbOnlyCaps>(137));
static_assert(Occupies<h225::TerminalInfo>(29));
static_assert(Occupies<h225::TransportAddress>(30));
static_assert(Occupies<h225::TunnelledProtocol>(45));
static_assert(Occupies<h225::TunnelledProtocolAlternateIdentifier>(24));
static_assert(Occupies<h225::VendorIdentifier>(36));

static_assert(Occupies<h235::AuthenticationBES>(6));
static_assert(Occupies<h235::AuthenticationMechanism>(21));
static_assert(Occupies<h235::ClearToken>(328));
static_assert(Occupies<h235::CryptoToken>(393));
static_assert(Occupies<h235::DHset>(28));
static_assert(Occupies<h235::ECKASDH>(85));
static_assert(Occupies<h235::ECpoint>(28));
static_assert(Occupies<h235::ENCRYPTED>(52));
static_assert(Occupies<h235::HASHED>(52));
static_assert(Occupies<h235::NonStandardParameter>(16));
static_assert(Occupies<h235::Params>(36));
static_assert(Occupies<h235::SIGNED>(60));
static_assert(Occupies<h235::TypedCertificate>(20));

static_assert(Occupies<h245::ATMParameters>(26));
static_assert(Occupies<h245::AlternativeCapabilitySet>(6));
static_assert(Occupies<h245::AudioCapability>(98));
<<<<<<< HEAD
static_assert(Occupies<h245::AudioMode>(98));
=======
static_assert(Occupies<h245::AudioTelephonyEventCapability>(13));
static_assert(Occupies<h245::AudioToneCapability>(5));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::AuthenticationCapability>(37));
static_assert(Occupies<h245::BEnhancementParameters>(367));
static_assert(Occupies<h245::CRCLength>(6));
static_assert(Occupies<h245::Capability>(437));
static_assert(Occupies<h245::CapabilityDescriptor>(11));
static_assert(Occupies<h245::CapabilityIdentifier>(22));
<<<<<<< HEAD
static_assert(Occupies<h245::CommunicationModeCommand>(10));
static_assert(Occupies<h245::CommunicationModeResponse>(11));
static_assert(Occupies<h245::CommunicationModeTableEntry>(672));
=======
static_assert(Occupies<h245::CapabilityTableEntry>(443));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::CompressionType>(15));
static_assert(Occupies<h245::ConferenceCapability>(33));
static_assert(Occupies<h245::CustomPictureClockFrequency>(37));
static_assert(Occupies<h245::CustomPictureFormat>(41));
static_assert(Occupies<h245::DataApplicationCapability>(119));
static_assert(Occupies<h245::DataMode>(107));
static_assert(Occupies<h245::DataProtocolCapability>(25));
static_assert(Occupies<h245::DataType>(530));
static_assert(Occupies<h245::EncryptionAuthenticationAndIntegrity>(84));
static_assert(Occupies<h245::EncryptionMode>(22));
static_assert(Occupies<h245::EncryptionSync>(44));
static_assert(Occupies<h245::EnhancementLayerInfo>(35));
static_assert(Occupies<h245::EnhancementOptions>(362));
static_assert(Occupies<h245::EscrowData>(20));
static_assert(Occupies<h245::ExtendedVideoCapability>(18));
static_assert(Occupies<h245::FECCapability>(25));
static_assert(Occupies<h245::FECData>(25));
static_assert(Occupies<h245::FECMode>(29));
static_assert(Occupies<h245::G7231AnnexCCapability>(24));
static_assert(Occupies<h245::G7231AnnexCMode>(20));
static_assert(Occupies<h245::G729Extensions>(38));
static_assert(Occupies<h245::GSMAudioCapability>(14));
static_assert(Occupies<h245::GenericCapability>(93));
static_assert(Occupies<h245::GenericParameter>(48));
static_assert(Occupies<h245::H222Capability>(11));
static_assert(Occupies<h245::H222LogicalChannelParameters>(38));
static_assert(Occupies<h245::H223AL1MParameters>(55));
static_assert(Occupies<h245::H223AL2MParameters>(14));
static_assert(Occupies<h245::H223AL3MParameters>(45));
static_assert(Occupies<h245::H223AnnexCArqParameters>(14));
static_assert(Occupies<h245::H223AnnexCCapability>(58));
static_assert(Occupies<h245::H223Capability>(181));
static_assert(Occupies<h245::H223LogicalChannelParameters>(68));
<<<<<<< HEAD
static_assert(Occupies<h245::H223ModeParameters>(68));
=======
static_assert(Occupies<h245::H2250Capability>(166));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::H2250LogicalChannelAckParameters>(121));
static_assert(Occupies<h245::H2250LogicalChannelParameters>(294));
static_assert(Occupies<h245::H2250ModeParameters>(152));
static_assert(Occupies<h245::H235Media>(525));
<<<<<<< HEAD
static_assert(Occupies<h245::H235Mode>(456));
=======
static_assert(Occupies<h245::H235SecurityCapability>(90));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::H245MessageRecord>(1861));
static_assert(Occupies<h245::H261VideoCapability>(32));
static_assert(Occupies<h245::H261VideoMode>(12));
static_assert(Occupies<h245::H262VideoCapability>(97));
static_assert(Occupies<h245::H262VideoMode>(51));
static_assert(Occupies<h245::H263ModeComboFlags>(136));
static_assert(Occupies<h245::H263Options>(279));
static_assert(Occupies<h245::H263Version3Options>(36));
static_assert(Occupies<h245::H263VideoCapability>(427));
static_assert(Occupies<h245::H263VideoMode>(358));
static_assert(Occupies<h245::H263VideoModeCombos>(145));
static_assert(Occupies<h245::IS11172AudioCapability>(38));
static_assert(Occupies<h245::IS11172AudioMode>(12));
static_assert(Occupies<h245::IS11172VideoCapability>(57));
static_assert(Occupies<h245::IS11172VideoMode>(49));
static_assert(Occupies<h245::IS13818AudioCapability>(86));
static_assert(Occupies<h245::IS13818AudioMode>(20));
static_assert(Occupies<h245::IntegrityCapability>(25));
static_assert(Occupies<h245::MediaChannelCapability>(21));
static_assert(Occupies<h245::MediaDistributionCapability>(46));
static_assert(Occupies<h245::MediaEncryptionAlgorithm>(22));
static_assert(Occupies<h245::MediaPacketizationCapability>(18));
static_assert(Occupies<h245::MediaTransportType>(13));
static_assert(Occupies<h245::ModeDescription>(6));
static_assert(Occupies<h245::ModeElement>(867));
static_assert(Occupies<h245::ModeElementType>(512));
static_assert(Occupies<h245::MulticastAddress>(22));
static_assert(Occupies<h245::MultiplePayloadStream>(9));
static_assert(Occupies<h245::MultiplePayloadStreamCapability>(10));
static_assert(Occupies<h245::MultiplePayloadStreamElement>(13));
<<<<<<< HEAD
static_assert(Occupies<h245::MultiplePayloadStreamElementMode>(516));
static_assert(Occupies<h245::MultiplePayloadStreamMode>(9));
static_assert(Occupies<h245::MultiplexElement>(9));
static_assert(Occupies<h245::MultiplexEntryDescriptor>(11));
static_assert(Occupies<h245::MultiplexEntryRejectionDescriptions>(11));
static_assert(Occupies<h245::MultiplexEntrySend>(10));
static_assert(Occupies<h245::MultiplexEntrySendAck>(10));
static_assert(Occupies<h245::MultiplexEntrySendReject>(10));
static_assert(Occupies<h245::MultiplexEntrySendRelease>(9));
static_assert(Occupies<h245::MultiplexFormat>(186));
static_assert(Occupies<h245::MultiplexedStreamModeParameters>(6));
=======
static_assert(Occupies<h245::MultiplexCapability>(186));
static_assert(Occupies<h245::MultiplexFormat>(186));
static_assert(Occupies<h245::MultiplexedStreamCapability>(204));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::MultiplexedStreamParameter>(194));
static_assert(Occupies<h245::MultipointCapability>(17));
static_assert(Occupies<h245::NetworkAccessParameters>(83));
static_assert(Occupies<h245::NonStandardParameter>(17));
static_assert(Occupies<h245::OpenLogicalChannel>(1845));
static_assert(Occupies<h245::ParameterIdentifier>(22));
static_assert(Occupies<h245::ParameterValue>(13));
static_assert(Occupies<h245::Q2931Address>(29));
static_assert(Occupies<h245::QOSCapability>(113));
static_assert(Occupies<h245::QOSMode>(6));
static_assert(Occupies<h245::RSVPParameters>(54));
static_assert(Occupies<h245::RTPH263VideoRedundancyEncoding>(28));
static_assert(Occupies<h245::RTPH263VideoRedundancyFrameMapping>(11));
static_assert(Occupies<h245::RTPPayloadType>(31));
static_assert(Occupies<h245::RedundancyEncoding>(79));
<<<<<<< HEAD
static_assert(Occupies<h245::RedundancyEncodingDTMode>(507));
static_assert(Occupies<h245::RedundancyEncodingDTModeElement>(465));
=======
static_assert(Occupies<h245::RedundancyEncodingCapability>(49));
>>>>>>> 6b26ee3fa1d534b8b87b8c92e29b63b702dd19a8
static_assert(Occupies<h245::RedundancyEncodingElement>(13));
static_assert(Occupies<h245::RedundancyEncodingMethod>(33));
static_assert(Occupies<h245::RedundancyEncodingMode>(144));
static_assert(Occupies<h245::RefPictureSelection>(80));
static_assert(Occupies<h245::RequestMode>(11));
static_assert(Occupies<h245::RequestModeAck>(11));
static_assert(Occupies<h245::RequestModeReject>(11));
static_assert(Occupies<h245::RequestMultiplexEntry>(9));
static_assert(Occupies<h245::RequestMultiplexEntryReject>(14));
static_assert(Occupies<h245::RequestMultiplexEntryRejectionDescriptions>(11));
static_assert(Occupies<h245::T38FaxProfile>(69));
static_assert(Occupies<h245::T38FaxRateManagement>(6));
static_assert(Occupies<h245::T38FaxTcpOptions>(8));
static_assert(Occupies<h245::T38FaxUdpOptions>(22));
static_assert(Occupies<h245::T84Profile>(81));
static_assert(Occupies<h245::TerminalCapabilitySet>(223));
static_assert(Occupies<h245::TerminalCapabilitySetReject>(13));
static_assert(Occupies<h245::TerminalLabel>(6));
static_assert(Occupies<h245::TransparencyParameters>(16));
static_assert(Occupies<h245::TransportAddress>(38));
static_assert(Occupies<h245::TransportCapability>(45));
static_assert(Occupies<h245::UserInputCapability>(10));
static_assert(Occupies<h245::V42bis>(10));
static_assert(Occupies<h245::V75Capability>(8));
static_assert(Occupies<h245::V75Parameters>(8));
static_assert(Occupies<h245::V76Capability>(61));
static_assert(Occupies<h245::V76HDLCParameters>(16));
static_assert(Occupies<h245::V76LogicalChannelParameters>(54));
static_assert(Occupies<h245::V76ModeParameters>(6));
static_assert(Occupies<h245::VCCapability>(127));
static_assert(Occupies<h245::VideoCapability>(432));
static_assert(Occupies<h245::VideoMode>(363));

}  // namespace
}  // namespace kelvra
