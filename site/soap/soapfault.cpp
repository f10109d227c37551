#include "site/soap/soapfault.h"

namespace site {

void writeFault(SoapMessage &message, const SoapFault &fault)
{
    XmlElement element = message.body().add("env:Fault");
    XmlElement code = element.add("env:Code");
    code.add("env:Value", fault.isSender ? "env:Sender" : "env:Receiver");
    XmlElement subcode = code.add("env:Subcode");
    subcode.add("env:Value", fault.subcode);
    if (fault.detail)
        subcode.add("env:Subcode").add("env:Value", fault.detail);
    element.add("env:Reason").add("env:Text", fault.reason).attribute("xml:lang", "en");
}

} // namespace site
