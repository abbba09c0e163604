#pragma once

class Job;

/// Does all steps of a job. Throws a Failure where the user interrupts it.
void finish(Job& job);
