// The value tables: one for each set of values that a field or an attribute can have.
#pragma once

#include "display/tables/constant_row.h"

namespace quillon {

// The sizes count the end row. Without them the compiler could not tell one table from another in the checks.

// Values of fields of the API structures.
extern const ConstantRow Constant_Zkmt[7];
extern const ConstantRow Constant_Zkot[31];
extern const ConstantRow Constant_Zkrcn[5];
extern const ConstantRow Constant_EPH_Flags[3];
extern const ConstantRow Constant_ApplType[35];
extern const ConstantRow Constant_Zkcafty[3];
extern const ConstantRow Constant_Zkmon[8];
extern const ConstantRow Constant_Zkprop[6];
extern const ConstantRow Constant_Zkusedlq[4];
extern const ConstantRow Constant_Zkcert[3];

// Values of channels.
extern const ConstantRow Constant_Zkcdc[3];
extern const ConstantRow Constant_Zkchids[3];
extern const ConstantRow Constant_Zkchs[13];
extern const ConstantRow Constant_Zkchsr[3];
extern const ConstantRow Constant_Zkcht[10];
extern const ConstantRow Constant_Zkchtab[3];
extern const ConstantRow Constant_Zkido[3];
extern const ConstantRow Constant_Zkmcas[3];
extern const ConstantRow Constant_Zkmcat[3];
extern const ConstantRow Constant_Zknpms[3];
extern const ConstantRow Constant_Zkpa[5];
extern const ConstantRow Constant_Zksca[3];
extern const ConstantRow Constant_Zkxpt[9];
extern const ConstantRow Constant_Zkmulc[3];
extern const ConstantRow Constant_Zkadopt_check[5];
extern const ConstantRow Constant_Zkadopt_type[3];
extern const ConstantRow Constant_Zkchad[3];
extern const ConstantRow Constant_Zktraxstr[3];
extern const ConstantRow Constant_Zkipaddr[3];
extern const ConstantRow Constant_Zkrcvtime[4];
extern const ConstantRow Constant_Zkssl[3];
extern const ConstantRow Constant_Zktcpkeep[3];
extern const ConstantRow Constant_Zktcpstack[3];
extern const ConstantRow Constant_Zkcompress[8];
extern const ConstantRow Constant_Zkinbd[3];
extern const ConstantRow Constant_Zkchsstate[21];
extern const ConstantRow Constant_Zkchla[3];
extern const ConstantRow Constant_Zkcaut[8];
extern const ConstantRow Constant_Zkmcp[6];
extern const ConstantRow Constant_Zknsh[3];
extern const ConstantRow Constant_Zkuci[3];
extern const ConstantRow Constant_Zkusrc[4];
extern const ConstantRow Constant_Zkwarn[3];
extern const ConstantRow Constant_Zkclxq[3];

// Values of queues.
extern const ConstantRow Constant_Zkcqt[5];
extern const ConstantRow Constant_Zkclwl[4];
extern const ConstantRow Constant_Zkbnd[3];
extern const ConstantRow Constant_Zkoo_showpart[3];
extern const ConstantRow Constant_Zkper[5];
extern const ConstantRow Constant_Zkprt[3];
extern const ConstantRow Constant_Zkreada[6];
extern const ConstantRow Constant_Zkqdt[5];
extern const ConstantRow Constant_Zkdl[3];
extern const ConstantRow Constant_Zkqa_backout[3];
extern const ConstantRow Constant_Zkit[6];
extern const ConstantRow Constant_Zkqa_get[3];
extern const ConstantRow Constant_Zkqa_put[3];
extern const ConstantRow Constant_Zkmds[3];
extern const ConstantRow Constant_Zknt[6];
extern const ConstantRow Constant_Zknpm[3];
extern const ConstantRow Constant_Zkqsie[4];
extern const ConstantRow Constant_Zkqt[7];
extern const ConstantRow Constant_Zksco[3];
extern const ConstantRow Constant_Zkqa_share[3];
extern const ConstantRow Constant_Zktc[3];
extern const ConstantRow Constant_Zktt[5];
extern const ConstantRow Constant_Zkus[3];
extern const ConstantRow Constant_Zkqsot[4];
extern const ConstantRow Constant_Zkqsum[3];
extern const ConstantRow Constant_Zkhstate[3];
extern const ConstantRow Constant_Zkqso_yesno[3];
extern const ConstantRow Constant_Zkqso_share[4];

// Values of queue managers.
extern const ConstantRow Constant_Zkpl[14];
extern const ConstantRow Constant_Zkopmode[3];
extern const ConstantRow Constant_Zkrecording[4];
extern const ConstantRow Constant_Zkait[2];
extern const ConstantRow Constant_Zkevr[8];
extern const ConstantRow Constant_Zkcfr[3];
extern const ConstantRow Constant_Zksvc_control[4];
extern const ConstantRow Constant_Zkigqpa[5];
extern const ConstantRow Constant_Zkigq[3];
extern const ConstantRow Constant_Zkscyc[3];
extern const ConstantRow Constant_Zksvc_type[3];
extern const ConstantRow Constant_Zksqqm[3];
extern const ConstantRow Constant_Zksp[3];
extern const ConstantRow Constant_Zkqmdt[5];
extern const ConstantRow Constant_Zkqmt[3];
extern const ConstantRow Constant_Zkqsgd[8];
extern const ConstantRow Constant_Zkqmsta[5];
extern const ConstantRow Constant_Zksvc_status[6];
extern const ConstantRow Constant_Zkcfconlos[4];
extern const ConstantRow Constant_Zkcfoffld[5];
extern const ConstantRow Constant_Zkrecauto[3];
extern const ConstantRow Constant_Zkdse[4];
extern const ConstantRow Constant_Zkcfaccess[4];

// Values of topics and subscriptions.
extern const ConstantRow Constant_Zksub[5];
extern const ConstantRow Constant_Zkta_pub[4];
extern const ConstantRow Constant_Zkta_sub[4];
extern const ConstantRow Constant_Zkmaster[3];
extern const ConstantRow Constant_Zkdlv[5];
extern const ConstantRow Constant_ProxySub[3];
extern const ConstantRow Constant_Zkscope[4];
extern const ConstantRow Constant_Zkpsclus[3];
extern const ConstantRow Constant_Zkpsm[4];
extern const ConstantRow Constant_Zkundelivered[5];
extern const ConstantRow Constant_Zksyncpoint[3];
extern const ConstantRow Constant_Zktopt[4];
extern const ConstantRow Constant_Zkta_wildcard[3];
extern const ConstantRow Constant_Zkpsprop[5];
extern const ConstantRow Constant_Zkdc[3];
extern const ConstantRow Constant_Zktscope[3];
extern const ConstantRow Constant_Zkvu[3];
extern const ConstantRow Constant_Zkru[3];
extern const ConstantRow Constant_Zkws[4];
extern const ConstantRow Constant_Zksubtype[6];
extern const ConstantRow Constant_Topicstatus[4];
extern const ConstantRow Constant_Zkclrt[2];
extern const ConstantRow Constant_Zkom[3];
extern const ConstantRow Constant_Zkps_status[8];
extern const ConstantRow Constant_Zkpsst[5];
extern const ConstantRow Constant_Zkseltype[4];
extern const ConstantRow Constant_Zksr[2];

// Values of commands, events, authorities and activities.
extern const ConstantRow Constant_Zkcacf_Zkcach[6];
extern const ConstantRow Constant_Zkdisconnect[4];
extern const ConstantRow Constant_Zkfc[3];
extern const ConstantRow Constant_Zkrp[3];
extern const ConstantRow Constant_Zkpo[3];
extern const ConstantRow Constant_Zkmode[4];
extern const ConstantRow Constant_Zkevo[7];
extern const ConstantRow Constant_Zket[2];
extern const ConstantRow Constant_Zkrq[29];
extern const ConstantRow Constant_Zkbt[2];
extern const ConstantRow Constant_Zkact[10];
extern const ConstantRow Constant_Zksus[3];
extern const ConstantRow Constant_Zkcfo_refreshrepos[3];
extern const ConstantRow Constant_Zkcfo_removequeues[3];
extern const ConstantRow Constant_Zksectype[4];
extern const ConstantRow Constant_Zkauth[27];
extern const ConstantRow Constant_Zkzaet[5];
extern const ConstantRow Constant_Zkuowst[5];
extern const ConstantRow Constant_Zkuowt[6];
extern const ConstantRow Constant_Zkroute[11];
extern const ConstantRow Constant_Zkoper[14];
extern const ConstantRow Constant_Zkuidsupp[3];
extern const ConstantRow Constant_Zkas[9];
extern const ConstantRow Constant_Zkcbt[3];
extern const ConstantRow Constant_Zkext[4];
extern const ConstantRow Constant_Zkextattrs[3];
extern const ConstantRow Constant_Zksysobj[3];
extern const ConstantRow Constant_Zkrar[3];

// Texts for the positions in PCF lists of integers; empty for a position without a row.
extern const ConstantRow Constant_ZkIntListZkdiscType[4];
extern const ConstantRow Constant_ZkIntListZkot[31];
extern const ConstantRow Constant_ZkIntListPersistence[3];
extern const ConstantRow Constant_ZkIntListPeriod[3];
extern const ConstantRow Constant_ZkIntListCompression[3];

}  // namespace quillon
