/* Decodes a message of each family in C.
 *
 * Shows the records of C: a CHOICE has its alternatives in `as`, and constants for its tags.
 */
#include <kelvra/kelvra_c.h>
#include <stdio.h>

/* A gatekeeperConfirm, with the spare octet that RAS needs. */
static const uint8_t ras[] = {0x04, 0x00, 0x00, 0xB1, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00,
                              0x04, 0x00, 0x81, 0x9A, 0x7E, 0x8A, 0xFF, 0xFF, 0x00};
/* A Release Complete with a callIdentifier, from its TPKT header on. */
static const uint8_t q931[] = {0x03, 0x00, 0x00, 0x33, 0x08, 0x02, 0x12, 0x67, 0x5A, 0x08, 0x02, 0x80, 0x90,
                               0x7E, 0x00, 0x23, 0x05, 0x25, 0xC0, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04,
                               0x58, 0x88, 0x00, 0x11, 0x00, 0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27,
                               0x28, 0x29, 0x2A, 0x2B, 0x2C, 0x2D, 0x2E, 0x2F, 0x10, 0x80, 0x01, 0x00};
/* A masterSlaveDetermination, without a TPKT header. */
static const uint8_t h245[] = {0x01, 0x00, 0x32, 0x80, 0x96, 0xA1, 0x07};

static int decode_ras(void) {
  kelvra_h225_ras_message_record message;
  const int decoded = KelvraDecodeRASMessage(&message, ras, sizeof ras) != 0;
  if (decoded && !message.isExtension && message.choiceTag == KELVRA_H225_RAS_MESSAGE_RECORD_TAG_GATEKEEPER_CONFIRM) {
    const kelvra_h225_transport_address* address = &message.as.gatekeeperConfirm.rasAddress;
    printf("gatekeeperConfirm %u", message.as.gatekeeperConfirm.requestSeqNum);
    if (!address->isExtension && address->choiceTag == KELVRA_H225_TRANSPORT_ADDRESS_TAG_IP_ADDRESS &&
        address->as.ipAddress.ip.data) {
      const uint8_t* ip = address->as.ipAddress.ip.data;
      printf(" at %u.%u.%u.%u:%u", ip[0], ip[1], ip[2], ip[3], address->as.ipAddress.port);
    }
    printf("\n");
  }
  KelvraFreeRASMessage(&message);
  return decoded;
}

static int decode_q931(void) {
  kelvra_h225_q931_message_record message;
  const int decoded = KelvraDecodeQ931Message(&message, q931, sizeof q931) == 0;
  if (decoded && message.messageType == KELVRA_H225_Q931_MESSAGE_TYPE_RELEASE_COMPLETE &&
      (message.presenceMask & KELVRA_H225_Q931_PRESENCE_CAUSE_PRESENT)) {
    const int cause = message.causeValue & 0x7F;
    printf("Release Complete, %s\n", cause == KELVRA_H225_Q850_CAUSE_NORMAL_CALL_CLEARING ? "normal" : "other cause");
  }
  KelvraFreeQ931Message(&message);
  return decoded;
}

static int decode_h245(void) {
  kelvra_h245_h245_message_record message;
  const int decoded = KelvraDecodeH245Message(&message, h245, sizeof h245) == 1;
  const kelvra_h245_request_message* request = &message.as.request;
  if (decoded && message.choiceTag == KELVRA_H245_H245_MESSAGE_RECORD_TAG_REQUEST && !request->isExtension &&
      request->choiceTag == KELVRA_H245_REQUEST_MESSAGE_TAG_MASTER_SLAVE_DETERMINATION) {
    printf("masterSlaveDetermination, terminal type %u\n", request->as.masterSlaveDetermination.terminalType);
  }
  KelvraFreeH245Message(&message);
  return decoded;
}

int main(void) { return decode_ras() && decode_q931() && decode_h245() ? 0 : 1; }
