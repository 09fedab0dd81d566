#pragma once

#include "codec/status.h"
#include "h225/ras/admission.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeAdmissionRequest(AdmissionRequest& m, PerReader& r);
Status DecodeAdmissionConfirm(AdmissionConfirm& m, PerReader& r);
Status DecodeAdmissionReject(AdmissionReject& m, PerReader& r);

}  // namespace kelvra::h225
