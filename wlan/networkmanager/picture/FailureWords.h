#ifndef FAILUREWORDS_H
#define FAILUREWORDS_H

/** NetworkManager's numbers for how far a connection is and why it failed, in those of ConnectionRecords.h.
 */
namespace FailureWords
{

/** The ConnectionStage of a connection that is coming up, by the state of its device. */
int StageOf(unsigned int deviceState);

/**
 * The ConnectionFailure of a connection whose device has failed.
 *
 * @param hasKey   a key was there to be tried: that none was given then means that it was the wrong one.
 */
int FailureOfDevice(unsigned int reason, bool hasKey);

/** The same of a connection by what it tells itself, as one of a VPN or one that was ended. */
int FailureOfConnection(unsigned int reason, bool hasKey);

} // namespace FailureWords

#endif
