// Figures about the requests and answers of a diagnosis: how many are lost, how long answers take, and which
// objects something concerns.
#ifndef WORKBENCH_DIAGNOSIS_SAMPLES_H
#define WORKBENCH_DIAGNOSIS_SAMPLES_H

#include "workbench/diagnosis/observations.h"

// Of the requests that are made in the way in which the agent is addressed.
struct Samples {
    size_t requests = 0;
    size_t answered = 0;  // requests
    size_t lost = 0;      // requests without an answer for objects that are answered at other times
    size_t lostFirst = 0; // requests before the first that was answered
    size_t duplicates = 0;
    double median = 0; // milliseconds, of the answers
    double slowest = 0;
};
Samples SamplesOf(const Observations& seen);

// How long the object's fastest answer took, in milliseconds; negative without an answer.
double TimeOfObject(const Observations& seen, const ObjectId& oid);

using ArrivalTest = std::function<bool(const Arrival& arrival, const AskedObject& question)>;

// The answers that something concerns.
struct Concerned {
    std::vector<const Arrival*> arrivals;
    std::vector<ObjectId> objects; // each once
    bool isEverything = false;     // all objects that have been answered
};
Concerned ConcernedBy(const Observations& seen, const ArrivalTest& test);

// The error-status with which the agent answers for kAgentObject; 0: none.
int32_t AgentObjectError(const Observations& seen);

// Their names, of which only the first are listed.
std::string ObjectsText(const std::vector<ObjectId>& objects);

#endif
